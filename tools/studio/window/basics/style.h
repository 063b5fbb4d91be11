/**
 * @file
 * The window's common style: distances, colors from the palette, fonts, icons, times.
 */
#pragma once

#include <QBoxLayout>
#include <QColor>
#include <QComboBox>
#include <QFont>
#include <QIcon>
#include <QLineEdit>
#include <QPalette>
#include <QString>

namespace AnimText::studio::window::basics {

constexpr int grid = 4;             ///< logical pixels; distances are multiples of it
constexpr int markWidth = 4 * grid; ///< width of the warning mark between label and field

/**
 * Widgets and layouts beside or below each other; null is a stretch.
 * @param spacing between them, @p margin around them, logical pixels
 */
QBoxLayout* Arrange(Qt::Orientation way, int spacing, const QList<QObject*>& items, int margin = 0);

/** Makes @p field show a command, with a button that copies it. */
void PrepareCommand(QLineEdit* field);

/** Lets @p box be narrower than its longest entry. */
void LetShrink(QComboBox* box);

/** Width of a form's labels in logical pixels, the same for all forms. */
int LabelWidth(const QFont& font);

/** @p a mixed with the share @p amount, 0 to 1, of @p b. */
QColor Mixed(const QColor& a, const QColor& b, double amount);
/** The color of warnings; light on dark palettes. */
QColor Warning(const QPalette& palette);
/** The color of secondary text: that of text with the share @p amount, 0 to 1, of its ground. */
QColor Quiet(const QPalette& palette, double amount = 0.4);

/** Gives the text of @p widget a color. */
void SetInk(QWidget* widget, const QColor& color);

/** @p font with digits of equal width, @p points larger. */
QFont TabularFont(const QFont& font, int points = 0);

/** The time in seconds, as in "3.43 s". */
QString SecondsText(qint64 milliseconds);

/** The theme's icon; if it has none, a drawn one in the palette's colors. */
QIcon Icon(const QString& name);

} // namespace AnimText::studio::window::basics
