#include "studio/window/time/timeline.h"

#include "studio/window/basics/style.h"

#include <QContextMenuEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

namespace AnimText::studio::window::time {
namespace {

constexpr int rulerHeight = 24; // logical pixels, as all sizes here
constexpr int rowHeight = 24;
constexpr int titleWidth = 128;
constexpr int rightMargin = 16;
constexpr int numberDistance = 56; // between the numbers of the ruler
constexpr int inset = 4;
constexpr double deepestZoom = 64;
constexpr int ticksUnmeasured = 60; // shown while the timing is unknown

double TicksOf(qint64 milliseconds)
{
    return double(milliseconds) / player::tickLength;
}

/** Number of the row's pages before its second play. */
int PagesPerPlay(const TimelineRow& row)
{
    const int pages = row.time.pages.size();
    const int plays = std::max(1, row.plays);
    return std::max(1, pages % plays == 0 ? pages / plays : pages);
}

} // namespace

Timeline::Timeline(Playback* playback, QWidget* parent)
    : QAbstractScrollArea(parent)
    , playback(playback)
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Timeline"));
    setMinimumSize(320, rulerHeight + 2 * rowHeight);
    viewport()->setMouseTracking(true);
    connect(playback, &Playback::TickChanged, viewport(), qOverload<>(&QWidget::update));
    connect(playback, &Playback::RangeChanged, viewport(), qOverload<>(&QWidget::update));
}

void Timeline::SetRows(const QVector<TimelineRow>& texts, int ticks)
{
    rows = texts;
    signTicks = ticks;
    stale = false;
    Adjust();
    viewport()->update();
}

void Timeline::MarkStale()
{
    stale = true;
    viewport()->update();
}

void Timeline::SetSelected(int id)
{
    selected = id;
    const auto isChosen = [id](const TimelineRow& row) { return row.id == id; };
    const auto row = std::find_if(rows.begin(), rows.end(), isChosen);
    if (row != rows.end()) {
        const int top = int(row - rows.begin()) * rowHeight;
        const int room = viewport()->height() - rulerHeight;
        QScrollBar* bar = verticalScrollBar();
        bar->setValue(qBound(top + rowHeight - room, bar->value(), top));
    }
    viewport()->update();
}

int Timeline::Ticks() const
{
    return std::max({rows.isEmpty() ? ticksUnmeasured : 1, signTicks, playback->Length()});
}

/** Width of the visible part of the times, in logical pixels. */
double Timeline::Room() const
{
    return std::max(1, viewport()->width() - titleWidth - rightMargin);
}

double Timeline::XOf(double tick) const
{
    return titleWidth + tick * Room() * zoom / Ticks() - horizontalScrollBar()->value();
}

int Timeline::TickAt(double x) const
{
    return int(
        std::floor((x - titleWidth + horizontalScrollBar()->value()) * Ticks() / (Room() * zoom)));
}

void Timeline::SetZoom(double wanted, double x)
{
    const double tick = (x - titleWidth + horizontalScrollBar()->value()) / zoom;
    zoom = std::max(1.0, std::min(wanted, deepestZoom));
    Adjust();
    horizontalScrollBar()->setValue(int(std::lround(tick * zoom - (x - titleWidth))));
    viewport()->update();
}

void Timeline::wheelEvent(QWheelEvent* event)
{
    if (event->modifiers() & Qt::ControlModifier)
        SetZoom(zoom * std::pow(2, event->angleDelta().y() / 240.0), event->position().x());
    else
        QAbstractScrollArea::wheelEvent(event);
}

std::set<int> Timeline::Marks() const
{
    std::set<int> marks{0, Ticks() - 1};
    for (const TimelineRow& row : rows) {
        const int from = int(TicksOf(row.time.from));
        for (const timing::PageTime& page : row.time.pages)
            marks.insert({from + page.begin, from + page.hold});
    }
    return marks;
}

int Timeline::NextMark(int tick) const
{
    const std::set<int> marks = Marks();
    const auto next = marks.upper_bound(tick);
    return next == marks.end() ? *marks.rbegin() : *next;
}

int Timeline::PreviousMark(int tick) const
{
    const std::set<int> marks = Marks();
    const auto next = marks.lower_bound(tick);
    return next == marks.begin() ? 0 : *std::prev(next);
}

QPair<int, int> Timeline::PageAt(int tick) const
{
    QPair<int, int> found{0, playback->Length() - 1};
    bool isFound = false; // of texts that play at the same time, the selected one counts
    for (const TimelineRow& row : rows) {
        const int at = tick - int(TicksOf(row.time.from));
        for (const timing::PageTime& page : row.time.pages) {
            if (at < page.begin || at >= page.end || (isFound && row.id != selected))
                continue;
            found = {tick - at + page.begin, tick - at + page.end - 1};
            isFound = true;
        }
    }
    return found;
}

QSize Timeline::sizeHint() const
{
    return {640, rulerHeight + 5 * rowHeight};
}

void Timeline::Adjust()
{
    const int room = viewport()->height() - rulerHeight;
    verticalScrollBar()->setRange(0, std::max(0, int(rows.size()) * rowHeight - room));
    verticalScrollBar()->setPageStep(std::max(1, room));
    verticalScrollBar()->setSingleStep(rowHeight);
    horizontalScrollBar()->setRange(0, int(Room() * (zoom - 1)));
    horizontalScrollBar()->setPageStep(int(Room()));
    horizontalScrollBar()->setSingleStep(rowHeight);
}

void Timeline::resizeEvent(QResizeEvent*)
{
    Adjust();
}

void Timeline::paintEvent(QPaintEvent*)
{
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), palette().color(QPalette::Base));
    const int offset = verticalScrollBar()->value();
    painter.setClipRect(0, rulerHeight, viewport()->width(), viewport()->height() - rulerHeight);
    for (int i = 0; i < rows.size(); ++i) {
        const int top = rulerHeight + i * rowHeight - offset;
        if (top + rowHeight > rulerHeight && top < viewport()->height())
            PaintRow(&painter, rows.at(i), QRect(0, top, viewport()->width(), rowHeight));
    }
    painter.setClipping(false);
    PaintRuler(&painter);
    if (rulerHeight + (rows.size() + 1) * rowHeight <= viewport()->height())
        PaintLegend(&painter);

    const double x = std::round(XOf(playback->Tick() + 0.5));
    painter.setClipRect(titleWidth - 2 * inset, 0, viewport()->width(), viewport()->height());
    const QColor accent = palette().color(QPalette::Text); // visible on every bar
    painter.setPen(QPen(accent, 1));
    painter.drawLine(QPointF(x, 0), QPointF(x, viewport()->height()));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(accent);
    painter.setPen(Qt::NoPen);
    painter.drawPolygon(QPolygonF({QPointF(x - 5, 0), QPointF(x + 6, 0), QPointF(x + 6, 4),
                                   QPointF(x + 0.5, 10), QPointF(x - 5, 4)}));
}

void Timeline::PaintRuler(QPainter* painter) const
{
    const QRect ruler(0, 0, viewport()->width(), rulerHeight);
    painter->fillRect(ruler, palette().color(QPalette::Window));
    if (playback->HasLoop()) {
        QColor shade = palette().color(QPalette::Highlight);
        shade.setAlpha(64);
        const double from = XOf(playback->LoopBegin());
        painter->fillRect(QRectF(from, 0, XOf(playback->LoopEnd() + 1) - from, rulerHeight), shade);
    }
    painter->setFont(basics::TabularFont(font(), -1));
    const double seconds = Ticks() * player::tickLength / 1000.0;
    const double perSecond = (XOf(Ticks()) - XOf(0)) / std::max(0.1, seconds);
    double step = 0.1; // seconds: 0.1, 0.2, 0.5, 1, 2, 5, ...
    for (int i = 0; step * perSecond < numberDistance; ++i)
        step *= i % 3 == 1 ? 2.5 : 2;
    const int small = step * perSecond / 5 >= 6 ? 5 : 2;
    for (int i = 0; i * step / small <= seconds + 0.001; ++i) {
        const double x = std::round(XOf(TicksOf(qint64(1000 * i * step / small))));
        if (x < titleWidth || x > viewport()->width())
            continue;
        const bool isNumber = i % small == 0;
        painter->setPen(basics::Quiet(palette(), 0.55));
        painter->drawLine(QPointF(x, isNumber ? rulerHeight - 7 : rulerHeight - 4),
                          QPointF(x, rulerHeight - 2));
        if (isNumber)
            painter->drawText(QPointF(x + 4, rulerHeight - 8),
                              locale().toString(i * step / small, 'f', step < 1 ? 1 : 0));
    }
    painter->setPen(basics::Quiet(palette(), 0.85));
    painter->drawLine(0, rulerHeight - 1, viewport()->width(), rulerHeight - 1);
    painter->setPen(basics::Quiet(palette()));
    painter->drawText(QRect(inset * 2, 0, titleWidth - inset * 3, rulerHeight), Qt::AlignVCenter,
                      tr("Seconds"));
}

/** Explains the colors below the rows. */
void Timeline::PaintLegend(QPainter* painter) const
{
    const QPair<Phase, QString> entries[]{
        {Entrance, tr("entrance")}, {Hold, tr("hold")}, {Cut, tr("cut off")}};
    painter->setFont(basics::TabularFont(font(), -1));
    const QFontMetrics metrics = painter->fontMetrics();
    const int middle = viewport()->height() - rowHeight / 2;
    int x = 2 * inset;
    for (const auto& entry : entries) {
        const QRect swatch(x, middle - 4, 12, 8);
        Fill(painter, swatch, entry.first);
        painter->setPen(basics::Quiet(palette()));
        x = swatch.right() + 1 + inset;
        painter->drawText(x, middle + metrics.ascent() / 2 - 1, entry.second);
        x += metrics.horizontalAdvance(entry.second) + 4 * inset;
    }
}

void Timeline::Fill(QPainter* painter, const QRectF& rect, Phase phase) const
{
    const QColor base = palette().color(QPalette::Base);
    const QColor accent = palette().color(QPalette::Highlight);
    const double holdShare = base.lightness() < 128 ? 0.45 : 0.65; // must be visible on dark, too
    if (phase == Cut) {
        painter->fillRect(rect, basics::Mixed(base, QColor(0, 0, 0, 0), 0.4));
        painter->fillRect(rect, QBrush(basics::Warning(palette()), Qt::BDiagPattern));
    } else {
        const QColor color = basics::Mixed(accent, base, phase == Entrance ? 0.1 : holdShare);
        painter->fillRect(rect, basics::Mixed(color, base, stale ? 0.6 : 0));
    }
}

void Timeline::PaintRow(QPainter* painter, const TimelineRow& row, const QRect& rect) const
{
    const worker::TextTime& text = row.time;
    const bool isSelected = row.id == selected;
    const QColor base = palette().color(QPalette::Base);
    const QColor background =
        isSelected ? basics::Mixed(palette().color(QPalette::Highlight), base, 0.88) : base;
    painter->fillRect(rect, background);
    QFont titleFont = font();
    titleFont.setBold(isSelected);
    painter->setFont(titleFont);
    painter->setPen(palette().color(QPalette::Text));
    const QRect title(2 * inset, rect.top(), titleWidth - 3 * inset, rowHeight);
    painter->drawText(title, Qt::AlignVCenter | Qt::TextSingleLine,
                      painter->fontMetrics().elidedText(row.title, Qt::ElideRight, title.width()));
    if (text.ending == timing::Ending::NothingToPlay)
        return;

    painter->save();
    painter->setClipRect(rect.adjusted(titleWidth - 1, 0, 0, 0), Qt::IntersectClip);
    const auto stretch = [&](double begin, double end) {
        return QRectF(XOf(begin), rect.top() + inset, XOf(end) - XOf(begin), rowHeight - 2 * inset);
    };
    const auto block = [&](double begin, double end, Phase phase) {
        QRectF bar = stretch(begin, end);
        bar.setWidth(std::max(1.0, bar.width() - 1));
        Fill(painter, bar, phase);
    };
    const double from = TicksOf(text.from);
    const double actual = text.actual >= 0 ? from + TicksOf(text.actual) : Ticks();
    // The host's very long times overflow to negative ones.
    const double planned =
        text.until >= 0 ? TicksOf(text.until) : from + TicksOf(std::max<qint64>(0, text.planned));
    if (text.pages.isEmpty())
        block(from, actual, Entrance);
    const int perPlay = PagesPerPlay(row);
    for (int i = 0; i < text.pages.size(); ++i) {
        const timing::PageTime& page = text.pages.at(i);
        block(from + page.begin, from + page.hold, Entrance);
        if (page.end > page.hold)
            block(from + page.hold, from + page.end, Hold);
        if (i < perPlay)
            continue;
        // Repeats are drawn flatter than the first play, with their number.
        const QRectF bar = stretch(from + page.begin, from + page.end);
        painter->fillRect(QRectF(bar.topLeft(), QSizeF(bar.width(), 5)), background);
        const QString number = QStringLiteral("×%1").arg(i / perPlay + 1);
        painter->setFont(basics::TabularFont(font(), -2));
        painter->setPen(palette().color(QPalette::HighlightedText));
        if (i % perPlay == 0 && painter->fontMetrics().horizontalAdvance(number) < bar.width())
            painter->drawText(bar.adjusted(3, 5, 3, 0), Qt::AlignVCenter, number);
    }
    // The host stops the text after its planned time and cuts off the rest.
    if (actual > planned + 1.99) // nobody misses a single tick
        Fill(painter, stretch(planned, actual), Cut);
    painter->setPen(QPen(basics::Warning(palette()), 1));
    const double x = std::round(XOf(planned));
    painter->drawLine(QPointF(x, rect.top() + 1), QPointF(x, rect.bottom() - 1));
    painter->restore();
}

/** The row at @p point; null for none. */
const TimelineRow* Timeline::RowAt(const QPoint& point) const
{
    const int row = (point.y() - rulerHeight + verticalScrollBar()->value()) / rowHeight;
    return point.y() >= rulerHeight && row < rows.size() ? &rows.at(row) : nullptr;
}

QString Timeline::Describe(const QPoint& point) const
{
    const TimelineRow* row = RowAt(point);
    if (!row)
        return tr("Click or drag: go to that time. Shift+drag: loop a range. Ctrl+wheel: zoom.");
    const worker::TextTime& text = row->time;
    const int at = TickAt(point.x());
    const double tick = at - TicksOf(text.from);
    const auto seconds = [](int ticks) {
        return basics::SecondsText(qint64(ticks) * player::tickLength);
    };
    QStringList lines{row->title};
    if (point.x() >= titleWidth)
        lines << tr("%1, tick %2").arg(seconds(at)).arg(at);
    for (int i = 0; i < text.pages.size(); ++i) {
        const timing::PageTime& page = text.pages.at(i);
        if (tick < page.begin || tick >= page.end)
            continue;
        const bool holds = tick >= page.hold;
        lines << (holds ? tr("Page %1: hold, %2") : tr("Page %1: entrance, %2"))
                     .arg(i % PagesPerPlay(*row) + 1)
                     .arg(seconds(holds ? page.end - page.hold : page.hold - page.begin));
    }
    lines << tr("Planned: %1").arg(basics::SecondsText(text.planned));
    if (text.actual >= 0)
        lines << tr("Needs: %1").arg(basics::SecondsText(text.actual));
    return lines.join(QLatin1Char('\n'));
}

void Timeline::contextMenuEvent(QContextMenuEvent* event)
{
    if (const TimelineRow* row = RowAt(event->pos())) {
        emit Selected(row->id);
        emit MenuWanted(event->globalPos());
    }
}

void Timeline::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    if (const TimelineRow* row = RowAt(event->pos()))
        emit Selected(row->id);
    if (event->pos().x() < titleWidth)
        return;
    marking = event->modifiers() & Qt::ShiftModifier;
    markFrom = TickAt(event->pos().x());
    playback->SetPace(0); // stay at the clicked tick
    if (!marking)
        playback->Seek(markFrom);
}

void Timeline::mouseMoveEvent(QMouseEvent* event)
{
    viewport()->setToolTip(Describe(event->pos()));
    if (!(event->buttons() & Qt::LeftButton))
        return;
    const int tick = TickAt(event->pos().x());
    if (marking)
        playback->SetLoop(markFrom, tick);
    else if (event->pos().x() >= titleWidth - 2 * inset)
        playback->Seek(tick);
}

void Timeline::mouseReleaseEvent(QMouseEvent* event)
{
    if (marking && TickAt(event->pos().x()) == markFrom)
        playback->ClearLoop();
    marking = false;
}

} // namespace AnimText::studio::window::time
