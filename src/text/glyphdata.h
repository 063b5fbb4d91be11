#ifndef GLYPHDATA_H
#define GLYPHDATA_H

#include <QByteArray>
#include <QPainterPath>
#include <QString>
#include <QVector>

class QIODevice;

namespace Lw {
namespace HNodeAnimationText {

/*
 * The two data files of a node: a serialised QByteArray holding Base64 text whose decoding is a
 * serialised QVector, in QDataStream::Qt_4_8. Files come from anywhere, and Qt's operators trust
 * the counts that they read, so the bytes are looked over first; what is well formed reaches the
 * operators untouched.
 */

/** The largest data file that is read, in bytes. */
const qint64 maxDataFileSize = qint64(256) << 20;

/** Most elements of one outline, and the largest coordinate in pixels, that are painted. */
const int maxOutlineElements = 65536;
const double maxOutlineCoordinate = 1e6;

/** The decoded bytes of an open data file; empty when they cannot be had. */
QByteArray ReadGlyphData(QIODevice& file);

/**
 * The outlines in @p bytes. Empty when the lengths contradict the bytes; an outline that is framed
 * soundly but malformed in itself is empty and the others keep their places.
 */
QVector<QPainterPath> OutlinesFrom(const QByteArray& bytes);

/** The descents in @p bytes, in pixels; empty when the count contradicts the bytes. */
QVector<int> DescentsFrom(const QByteArray& bytes);

} // namespace HNodeAnimationText
} // namespace Lw

#endif
