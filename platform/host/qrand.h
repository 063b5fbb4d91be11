/**
 * @file
 * Qt 6 has no qrand(). This one returns the numbers of Qt 5.15.
 * Only programs built with Qt 6 include it. It is in the host's library, so that a player can seed
 * what the plugin draws.
 */
#ifndef LW_QRAND_H
#define LW_QRAND_H

#include <QtGlobal>

#if QT_VERSION >= 0x060000

/** The thread's next number, 1 .. 2147483646. */
int qrand();

/** Seeds the thread's numbers; 1 by default. */
void qsrand(uint seed);

#endif

#endif
