/**
 * @file
 * A text and the wishes for it become a node of a scene.
 */
#ifndef ANIMTEXT_AUTHOR_H
#define ANIMTEXT_AUTHOR_H

#include "author/shaping.h"
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

/** Play mode of a node, "EffectType". */
enum class Mode { Entrance = 0, Scroll = 1 };

/** What the background behind the text does, "CheckDazzle" and its gradient. */
enum class Dazzle { Off, Plain, Linear, Radial, Conical };

/** What an author asks for. */
struct AuthorOptions
{
    QString text;
    QFont font; ///< family, weight, slant and underline; the size in pixels, or -1 to fit the area
    QColor color = QColor(255, 160, 0);
    Mode mode = Mode::Entrance;
    int motion = 4; ///< number of the entrance effect, or of the scroll
    int speed = 5;  ///< 0 slowest .. 9 fastest
    int hold = 20;  ///< how long a page stands, units of 100 ms
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
};

/**
 * @p text as one line: line breaks and tabs become spaces, one line break at the end is dropped.
 * @param notes takes a line on each kind of change
 * @return false when it holds what cannot be shown, and then @p error has one line on it
 */
bool ToOneLine(QString* text, QStringList* notes, QString* error);

/**
 * Lays out what @p options ask for. Needs a QGuiApplication.
 * @return false when a sign cannot show that, and then @p error has one line on it
 */
bool AuthorNode(const AuthorOptions& options, AuthoredNode* authored, QString* error);

} // namespace AnimText

#endif
