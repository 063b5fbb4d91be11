/**
 * @file
 * A picture of many frames: a titled row for each scene.
 */
#pragma once

#include <QImage>
#include <QString>
#include <QVector>

namespace AnimText::film {

struct SheetFrame
{
    QImage picture;
    qint64 milliseconds; ///< when it is shown
};

struct SheetRow
{
    QString number; ///< before the title; may be empty
    QString title;
    QString remark; ///< a line on what is seen; may be empty
    QVector<SheetFrame> frames;
};

/** Draws the rows below one another, many of them in two columns. */
QImage DrawContactSheet(const QVector<SheetRow>& rows);

} // namespace AnimText::film
