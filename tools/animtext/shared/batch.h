/**
 * @file
 * Many scenes rendered side by side, each by a process of its own.
 */
#ifndef ANIMTEXT_BATCH_H
#define ANIMTEXT_BATCH_H

#include "cli/progress.h"

#include <QStringList>

namespace AnimText {

struct Batch
{
    QStringList scenes;
    QString folder;      ///< where the films go
    QString ending;      ///< of every film, see FilmKind
    QStringList options; ///< of animtext render, for each of them
    QString plugin;      ///< the library that plays
    int jobs = 1;        ///< how many at once
    bool resume = false; ///< leaves films that are newer than what they are made from
    Progress::Form progress = Progress::Form::Bar;
};

/**
 * Renders all of them. One that fails tells its errors and does not keep the others. Throws Failure
 * unless all films are there in the end.
 */
void RenderAll(const Batch& batch);

} // namespace AnimText

#endif
