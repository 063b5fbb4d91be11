#ifndef ANIMATIONTEXT_EXPORT_H
#define ANIMATIONTEXT_EXPORT_H

#include <QtGlobal>

/**
 * Exports a symbol to hosts; the library hides the rest. Qt 4's Q_DECL_EXPORT is not enough: it is
 * empty where Qt itself was configured to hide nothing.
 */
#if defined(__GNUC__)
#define ANIMATIONTEXT_EXPORT __attribute__((visibility("default")))
#else
#define ANIMATIONTEXT_EXPORT Q_DECL_EXPORT
#endif

#endif
