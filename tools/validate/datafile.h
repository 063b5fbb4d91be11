/**
 * @file
 * Checks the data files of an animated text with the sign's own reader.
 */
#pragma once

#include <QList>
#include <QRectF>
#include <QString>
#include <QVector>

namespace AnimText::validate {

/** An outline that the sign refuses: it shows nothing at that place and keeps the others. */
struct BadOutline
{
    int index = 0;
    QString fault;
};

/** The content of a data file. */
struct DataFile
{
    QString fault;         ///< why the sign reads nothing from it; empty when it can be read
    QVector<bool> isEmpty; ///< for outlines, by index: valid, and nothing to see
    QVector<QRectF> ink;   ///< what outlines cover, relative to their baselines; by index
    QVector<int> descents; ///< for descents, by index
    QList<BadOutline> badOutlines;
};

/** The "PathData" file at @p path. */
DataFile LookIntoPathFile(const QString& path);

/** The "DescentVector" file at @p path. */
DataFile LookIntoDescentFile(const QString& path);

} // namespace AnimText::validate
