/**
 * @file
 * The two data files of a node.
 */
#pragma once

#include <QByteArray>
#include <QPainterPath>
#include <QVector>

namespace AnimText::layout {

/**
 * The content of a "PathData" file: a serialized byte array of Base64 text, which decodes to the
 * serialized list. Numbers are big-endian, in the stream format of the device's Qt (4.8).
 */
QByteArray PathFile(const QVector<QPainterPath>& outlines);

/** How many of the first @p outlines fit into a "PathData" file of @p bytes. */
int OutlinesThatFit(const QVector<QPainterPath>& outlines, qint64 bytes);

/** The content of a "DescentVector" file, in the same two layers. */
QByteArray DescentFile(const QVector<int>& descents);

} // namespace AnimText::layout
