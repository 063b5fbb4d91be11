/**
 * @file
 * A picture of many frames: a titled row for each scene.
 */
#ifndef ANIMTEXT_CONTACTSHEET_H
#define ANIMTEXT_CONTACTSHEET_H

#include <QImage>
#include <QString>
#include <QVector>

class QPainter;

namespace AnimText {

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

/** Collects rows and draws them below one another, many of them in two columns. */
class ContactSheet
{
public:
    void Add(const SheetRow& row) { rows.append(row); }
    QImage Draw() const;

private:
    QSize FrameSize() const;
    void DrawRow(QPainter* painter, const SheetRow& row, QPoint corner, QSize frame) const;

    QVector<SheetRow> rows;
};

} // namespace AnimText

#endif
