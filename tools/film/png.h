/**
 * @file
 * Pictures as PNGs.
 */
#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

namespace AnimText::film {

/** Whether a PNG is made quickly or small. */
enum class PngEffort { Fast, Small };

/** @p picture as a PNG; without transparency unless it is wanted. Empty if it is too large. */
QByteArray PngOf(QImage picture, bool transparent, PngEffort effort = PngEffort::Fast);

/** Whether the file at @p path has the mark that PngOf() leaves. */
bool IsOurPng(const QString& path);

/** Writes what PngOf() made, whole or not at all, to @p path; throws Failure. */
void WritePng(const QString& path, const QByteArray& png);

} // namespace AnimText::film
