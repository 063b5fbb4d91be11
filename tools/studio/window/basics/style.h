/**
 * @file
 * What all parts of the window look alike in: colours out of the palette, figures, icons, times.
 */
#ifndef ANIMTEXT_STYLE_H
#define ANIMTEXT_STYLE_H

#include <QColor>
#include <QComboBox>
#include <QFont>
#include <QIcon>
#include <QPalette>
#include <QString>

namespace AnimText {

constexpr int grid = 4;             ///< points; distances are multiples of it
constexpr int markWidth = 4 * grid; ///< of what stands between a label and its field

/** Lets @p box be narrower than its longest choice. */
void LetShrink(QComboBox* box);

/** Points for the labels of a form, so that all forms stand in line. */
int LabelWidth(const QFont& font);

/** @p amount of @p b, 0 to 1, in @p a. */
QColor Mixed(const QColor& a, const QColor& b, double amount);
/** For what goes wrong on the sign; light on dark palettes. */
QColor Warning(const QPalette& palette);
/** For words that stand back. */
QColor Quiet(const QPalette& palette);

/** @p font with figures that are all as wide, @p points larger. */
QFont TabularFont(const QFont& font, int points = 0);

/** "3.43 s". */
QString SecondsText(qint64 milliseconds);

/** The theme's icon, or ours where it has none; in the palette's colours at any size. */
QIcon Icon(const QString& name);

} // namespace AnimText

#endif
