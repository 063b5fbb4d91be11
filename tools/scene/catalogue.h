/**
 * @file
 * The entrance effects and scrolls by number and name, for people.
 */
#ifndef ANIMTEXT_CATALOGUE_H
#define ANIMTEXT_CATALOGUE_H

#include <QList>
#include <QString>

namespace AnimText {

/** One entrance effect, or one scroll direction. */
struct Motion
{
    int number;          ///< "AnimationEffect" or "ContinueStyle"
    const char* name;    ///< the engine's operation, e.g. "SwingEffect"
    const char* family;  ///< e.g. "oscillating"
    const char* summary; ///< one line on the motion as it really looks
};

/** The thirty entrance effects, by number. */
const QList<Motion>& Effects();
/** The four scrolls, by number: left, right, up, down. */
const QList<Motion>& Scrolls();

/** The effect of that number or name (upper and lower case alike); null when there is none. */
const Motion* FindEffect(const QString& numberOrName);
/** The scroll named left, right, up or down, or by its operation's name; null for none. */
const Motion* FindScroll(const QString& name);

} // namespace AnimText

#endif
