#include "film/contactsheet.h"

#include <QPainter>

#include <algorithm>

namespace AnimText::film {

namespace {

const QColor paper(22, 24, 29);
const QColor screen(0, 0, 0);
const QColor edge(52, 56, 66);
const QColor numberInk(255, 176, 32);
const QColor titleInk(240, 241, 244);
const QColor remarkInk(150, 156, 168);

constexpr int margin = 28;
constexpr int gap = 8; // between two frames
constexpr int titleHeight = 24;
constexpr int timeHeight = 17;
constexpr int rowGap = 20;
constexpr int columnGap = 44;
constexpr int rowsInOneColumn = 8;
constexpr int widestRow = 1400; // of the pictures alone, in pixels
constexpr int widestInTwo = 960;
constexpr int highestFrame = 200;

QFont Font(int pixels, bool bold)
{
    QFont font("DejaVu Sans");
    font.setPixelSize(pixels);
    font.setBold(bold);
    return font;
}

void DrawRow(QPainter* painter, const SheetRow& row, QPoint corner, QSize frame)
{
    const int width = row.frames.size() * (frame.width() + gap) - gap;
    QRect line(corner, QSize(width, titleHeight));
    const auto write = [&](const QString& text, const QFont& font, const QColor& ink, int space) {
        painter->setFont(font);
        painter->setPen(ink);
        const QFontMetrics metrics = painter->fontMetrics();
        // Letters of all sizes have the same baseline.
        painter->drawText(line.left(), line.bottom() - 7,
                          metrics.elidedText(text, Qt::ElideRight, line.width()));
        if (!text.isEmpty())
            line.setLeft(line.left() + metrics.horizontalAdvance(text) + space);
    };
    write(row.number, Font(15, true), numberInk, 8);
    write(row.title, Font(15, true), titleInk, 14);
    write(row.remark, Font(12, false), remarkInk, 0);

    QPoint at = corner + QPoint(0, titleHeight);
    for (const SheetFrame& shot : row.frames) {
        const QSize size = shot.picture.size().scaled(frame, Qt::KeepAspectRatio);
        const QRect cell(at, size);
        painter->fillRect(cell, screen);
        painter->drawImage(cell, shot.picture);
        painter->setPen(edge);
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(cell.adjusted(-1, -1, 0, 0));
        painter->setFont(Font(10, false));
        painter->setPen(remarkInk);
        painter->drawText(
            QRect(at + QPoint(0, frame.height() + 2), QSize(frame.width(), timeHeight)),
            Qt::AlignRight | Qt::AlignTop,
            QStringLiteral("%1 s").arg(double(shot.milliseconds) / 1000, 0, 'f', 1));
        at.rx() += frame.width() + gap;
    }
}

} // namespace

QImage DrawContactSheet(const QVector<SheetRow>& rows)
{
    const int columns = rows.size() > rowsInOneColumn ? 2 : 1;
    const int lines = std::max(1, (int(rows.size()) + columns - 1) / columns);
    QSize largest(1, 1);
    int frames = 1;
    for (const SheetRow& row : rows) {
        frames = std::max(frames, int(row.frames.size()));
        for (const SheetFrame& frame : row.frames)
            largest = largest.expandedTo(frame.picture.size());
    }
    // One scale for all rows, as large as the widest row allows.
    const int room = (columns == 2 ? widestInTwo : widestRow) - (frames - 1) * gap;
    const QSize frame =
        largest.scaled(std::max(24, room / frames), highestFrame, Qt::KeepAspectRatio)
            .expandedTo(QSize(1, 1));
    const int rowWidth = frames * (frame.width() + gap) - gap;
    const int rowHeight = titleHeight + frame.height() + timeHeight;
    QImage sheet(2 * margin + columns * (rowWidth + columnGap) - columnGap,
                 2 * margin + lines * (rowHeight + rowGap) - rowGap, QImage::Format_RGB32);
    sheet.fill(paper);
    QPainter painter(&sheet);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing, false);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    for (int i = 0; i < rows.size(); ++i) {
        const QPoint corner(margin + i / lines * (rowWidth + columnGap),
                            margin + i % lines * (rowHeight + rowGap));
        DrawRow(&painter, rows.at(i), corner, frame);
    }
    return sheet;
}

} // namespace AnimText::film
