/**
 * @file
 * Colors as people write them.
 */
#pragma once

#include <QColor>
#include <QString>

namespace AnimText::scene {

/**
 * Reads an opaque color: a name, #rgb or #rrggbb. Otherwise returns false, and @p hint is the end
 * of a message: the name that may have been meant, or that it must be opaque.
 */
bool ReadColor(const QString& text, QColor* color, QString* hint);

} // namespace AnimText::scene
