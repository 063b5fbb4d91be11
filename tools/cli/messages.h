/**
 * @file
 * What the plugin and Qt have to say while they work, on standard error.
 */
#ifndef ANIMTEXT_MESSAGES_H
#define ANIMTEXT_MESSAGES_H

#include <QString>

namespace AnimText {

/**
 * From now on each message is told once, however often it comes, and what Qt remarks on the state
 * of a desktop session, which nothing here needs, is not told.
 */
void InstallMessages();

/** One line for who has no display to play on: what there is to do. */
QString NoDisplay();

/** While it lives, nothing is told. */
class Silence
{
public:
    Silence();
    ~Silence();

private:
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;
};

} // namespace AnimText

#endif
