/**
 * @file
 * The entrance effects and scrolls by number and name, and what the tools must know of each.
 */
#pragma once

#include <QFlags>
#include <QList>
#include <QString>
#include <QStringList>

namespace AnimText::scene {

/** How a motion treats characters, where that decides how a text is laid out for it. */
enum MotionTrait {
    /// Turns characters, or stretches them sideways, about their own places or the page's middle:
    /// letters must be at those places.
    Turns = 1,
    /// Reaches up to where the highest letter touches the top of the area.
    ReachesTop = 2,
    /// Takes as long as the widest character is wide: no space may be wider than a letter.
    EvenWidths = 4,
    /// Fills pages from the end of the text, and ends them at the right edge.
    FromEnd = 8,
    /// Moves the whole line sideways; the device does.
    Sideways = 16,
};
Q_DECLARE_FLAGS(MotionTraits, MotionTrait)
Q_DECLARE_OPERATORS_FOR_FLAGS(MotionTraits)

/** One entrance effect, or one scroll direction. */
struct Motion
{
    int number;           ///< "AnimationEffect" or "ContinueStyle"
    const char* name;     ///< the host's name, e.g. "SwingEffect"; it may say something else
    const char* title;    ///< what people see, e.g. "Sway"
    const char* family;   ///< e.g. "sway and shake"
    const char* summary;  ///< what people see, in one line
    const char* synonyms; ///< other words that people search for
    MotionTraits traits = {};
};

/** The entrance effects, by number. */
const QList<Motion>& Effects();
/** The four scrolls, by number: left, right, up, down. */
const QList<Motion>& Scrolls();
/** What the command line calls the scrolls. */
const QStringList& Directions();

/**
 * The effect of that number or name (upper and lower case alike), or the scroll, whose name may
 * also be its direction; null when there is none.
 */
const Motion* FindEffect(const QString& numberOrName);
const Motion* FindScroll(const QString& numberOrName);

/**
 * Whether every word of @p search occurs in what is known of @p motion: "#" and its number, its
 * name, and its title, family, summary and synonyms in English and in the program's language.
 */
bool Matches(const Motion& motion, const QString& search);

} // namespace AnimText::scene
