/**
 * @file
 * Makes a node of a scene from a text and its options.
 */
#ifndef ANIMTEXT_AUTHOR_H
#define ANIMTEXT_AUTHOR_H

#include "layout/fit.h"
#include "layout/placement.h"
#include "layout/shaping.h"
#include "layout/styledtext.h"
#include "scene/motion.h"
#include "scene/scene.h"

#include <QColor>
#include <QFont>
#include <QList>
#include <QMap>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>

namespace AnimText {

/** The dazzle background: "CheckDazzle" and its gradient. */
enum class Dazzle { Off, Plain, Linear, Radial, Conical };

struct AuthorOptions
{
    QString text;
    QFont font; ///< family, weight, slant, underline; the size in pixels, or -1 to fit the area's
                ///< height, or 48 without an area
    QColor color = QColor(255, 160, 0);
    QVector<StyleRun> styles; ///< of the characters; empty: all in font and color. The sign
                              ///< paints all in the color of the first character
    Fit fit = Fit::None;      ///< except for None, needs an area and changes the sizes
    Align align = Align::Natural;
    VAlign valign = VAlign::Middle;
    int padding = 0;        ///< free pixels on each side of the area
    bool keepsWords = true; ///< pages end where words end
    NodeMotion motion{Mode::Entrance, 4};
    int speed = 5; ///< 0 slowest .. 9 fastest
    int hold = 20; ///< how long a page stands, units of 100 ms
    int plays = 1;
    QPoint pos; ///< of the area on the display, pixels
    QSize area; ///< pixels; empty: fits the text
    bool hollow = false;
    Dazzle dazzle = Dazzle::Off;
    int neon = -1;       ///< neon style, or -1 for no neon background
    QString neonPicture; ///< file for neon styles above 28
    QString picture;     ///< file that fills the dazzle background
};

/** A node with its data files, not yet on disk, and what to warn of. */
struct AuthoredNode
{
    SceneNode node;         ///< its "PathData" and "DescentVector" are not set yet
    QByteArray pathFile;    ///< content for "PathData"
    QByteArray descentFile; ///< content for "DescentVector"
    QSize textSize;         ///< of the laid-out line, pixels
    int pages = 1;          ///< into which the sign divides the text
    QList<UnseenCharacter> unseen;
    QStringList tornWords; ///< words that are wider than a page
    int cutAbove = 0;      ///< pixels of letters at rest outside the area
    int cutBelow = 0;
};

/**
 * Lays out a text. Needs a QGuiApplication.
 * @return false, with one line in @p error, if a sign cannot show it
 */
bool AuthorNode(const AuthorOptions& options, AuthoredNode* authored, QString* error);

} // namespace AnimText

#endif
