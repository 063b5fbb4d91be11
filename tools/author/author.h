/**
 * @file
 * A text and the wishes for it become a node of a scene.
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

/** What the background behind the text does, "CheckDazzle" and its gradient. */
enum class Dazzle { Off, Plain, Linear, Radial, Conical };

/** What an author asks for. */
struct AuthorOptions
{
    QString text;
    QFont font; ///< family, weight, slant and underline; the size in pixels, or -1 for 48, or to
                ///< fit the height of the area where one is given
    QColor color = QColor(255, 160, 0);
    QVector<StyleRun> styles; ///< of the characters; empty for all in font and color. The sign
                              ///< paints all of them in the colour of the first one
    Fit fit = Fit::None;      ///< other than None needs an area and changes the sizes
    Align align = Align::Natural;
    VAlign valign = VAlign::Middle;
    int padding = 0;        ///< pixels that stay free at each side of the area
    bool keepsWords = true; ///< pages end where words end
    NodeMotion motion{Mode::Entrance, 4};
    int speed = 5; ///< 0 slowest .. 9 fastest
    int hold = 20; ///< how long a page stands, units of 100 ms
    int plays = 1;
    QPoint pos; ///< of the area on the display, pixels
    QSize area; ///< pixels; empty for one that suits the text
    bool hollow = false;
    Dazzle dazzle = Dazzle::Off;
    int neon = -1;       ///< neon style, or -1 for no neon background
    QString neonPicture; ///< file for neon styles above 28
    QString picture;     ///< file that fills the dazzle background
};

/** A node with its data files, not yet on disk, and what came of the wishes. */
struct AuthoredNode
{
    SceneNode node;         ///< its "PathData" and "DescentVector" are not set yet
    QByteArray pathFile;    ///< content for "PathData"
    QByteArray descentFile; ///< content for "DescentVector"
    QSize textSize;         ///< of the laid-out line, pixels
    int pages = 1;          ///< pages that the sign cuts the text into
    QList<UnseenCharacter> unseen;
    QStringList tornWords; ///< words that are wider than a page
    int cutAbove = 0;      ///< pixels by which letters at rest reach out of the area
    int cutBelow = 0;
};

/**
 * Lays out what @p options ask for. Needs a QGuiApplication.
 * @return false when a sign cannot show that, and then @p error has one line on it
 */
bool AuthorNode(const AuthorOptions& options, AuthoredNode* authored, QString* error);

} // namespace AnimText

#endif
