/**
 * @file
 * Qt 6 has no qrand() any more; here it is again, with the numbers that it gave in Qt 5.15.
 * Only programs built with Qt 6 include it. It is in the host's library, so that a player can seed
 * what the plugin draws.
 */
#ifndef LW_QRAND_H
#define LW_QRAND_H

#include <QtGlobal>

#if QT_VERSION >= 0x060000

/** The thread's next number, 1 .. 2147483646. */
int qrand();

/** What the thread's numbers start from; 1 until it is called. */
void qsrand(uint seed);

#endif

#endif
