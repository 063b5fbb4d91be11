/**
 * @file
 * The commands of animtext. Each takes its words without the program's and its own name and answers
 * the exit status: 0 done, 1 a failed run, 2 bad usage or bad input.
 */
#ifndef ANIMTEXT_COMMANDS_H
#define ANIMTEXT_COMMANDS_H

#include <QStringList>

namespace AnimText {

int RunAuthor(const QStringList& words);
int RunDuration(const QStringList& words);
int RunEffects(const QStringList& words);
int RunRender(const QStringList& words);
int RunSheet(const QStringList& words);
int RunSoak(const QStringList& words);
int RunTrace(const QStringList& words);
int RunValidate(const QStringList& words);

} // namespace AnimText

#endif
