/**
 * @file
 * What a sign plays that shows everything it can.
 */
#ifndef ANIMTEXT_SOAKMIX_H
#define ANIMTEXT_SOAKMIX_H

#include "scene/scene.h"

#include <QDir>
#include <QVector>

#include <functional>

namespace AnimText {

/**
 * A scene for every motion before every background, at all speeds, with and without alpha blending.
 * Their data files are written into @p folder.
 * @return empty, with one line in @p error, when that fails; empty where @p goOn says false
 */
QVector<Scene> SoakMix(const QDir& folder, const std::function<bool()>& goOn, QString* error);

} // namespace AnimText

#endif
