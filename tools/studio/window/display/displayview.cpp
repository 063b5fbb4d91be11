#include "studio/window/display/displayview.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace AnimText::studio::window::display {
namespace {

constexpr int reach = 6;     // logical pixels from an edge at which the mouse drags it
constexpr int snapReach = 6; // logical pixels at which edges snap to each other
constexpr int handle = 6;    // logical pixels
constexpr int rulerWidth = 18;
constexpr int numberDistance = 44; // between the numbers of a ruler
constexpr int wheelStep = 120;     // eighths of a degree
const QColor magenta(255, 0, 160); // of marks that no sign has

} // namespace

DisplayView::DisplayView(QWidget* parent)
    : live::PictureView(parent, true)
{
    setMouseTracking(true);
    setAttribute(Qt::WA_Hover); // updates when the mouse leaves
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Display"));
    setAccessibleDescription(tr("What the sign shows at the current tick"));
}

void DisplayView::SetFrames(const QVector<AreaFrame>& areas, int chosen)
{
    frames = areas;
    selected = chosen;
    update();
}

void DisplayView::SetShowsFrames(bool all)
{
    showsAll = all;
    update();
}

void DisplayView::SetShowsRulers(bool always)
{
    showsRulers = always;
    update();
}

void DisplayView::SetCompared(const QImage& other)
{
    differences.clear();
    const QImage& mine = Picture();
    const int height = other.size() == mine.size() ? mine.height() : 0;
    for (int y = 0; y < height; ++y) {
        const auto* a = reinterpret_cast<const QRgb*>(mine.constScanLine(y));
        const auto* b = reinterpret_cast<const QRgb*>(other.constScanLine(y));
        for (int x = 0; x < mine.width(); ++x) {
            if (a[x] != b[x])
                differences.append(QPoint(x, y));
        }
    }
    update();
}

const AreaFrame* DisplayView::Find(int id) const
{
    const auto found = std::find_if(frames.begin(), frames.end(),
                                    [id](const AreaFrame& frame) { return frame.id == id; });
    return found == frames.end() ? nullptr : &*found;
}

/** The topmost area at @p point, but the selected one first: it can be dragged under another. */
int DisplayView::FrameAt(const QPointF& point) const
{
    int found = 0;
    for (const AreaFrame& frame : frames) {
        const QRectF rect = ToWidget().mapRect(QRectF(frame.rect)).adjusted(-2, -2, 2, 2);
        if (rect.contains(point) && (found == 0 || found != selected))
            found = frame.id;
    }
    return found;
}

Qt::Edges DisplayView::EdgesAt(const QPointF& point) const
{
    const AreaFrame* frame = Find(selected);
    if (!frame)
        return {};
    const QRectF rect = ToWidget().mapRect(QRectF(frame->rect));
    if (!rect.adjusted(-reach, -reach, reach, reach).contains(point))
        return {};
    Qt::Edges found;
    if (qAbs(point.x() - rect.right()) <= reach)
        found |= Qt::RightEdge;
    else if (qAbs(point.x() - rect.left()) <= reach)
        found |= Qt::LeftEdge;
    if (qAbs(point.y() - rect.bottom()) <= reach)
        found |= Qt::BottomEdge;
    else if (qAbs(point.y() - rect.top()) <= reach)
        found |= Qt::TopEdge;
    return found;
}

void DisplayView::PaintOverlay(QPainter* painter)
{
    const QTransform map = ToWidget();
    const QColor accent = palette().color(QPalette::Highlight);
    painter->setRenderHint(QPainter::Antialiasing, false);
    for (const QPoint& pixel : differences)
        painter->fillRect(map.mapRect(QRectF(pixel, QSizeF(1, 1))).adjusted(-1, -1, 1, 1), magenta);
    const int under = underMouse() ? hovered : 0;
    for (const AreaFrame& frame : frames) {
        const bool isSelected = frame.id == selected;
        if (!showsAll && frame.id != under && !(isSelected && (under != 0 || hasFocus())))
            continue;
        const QRectF rect = map.mapRect(QRectF(frame.rect)).adjusted(-1, -1, 0, 0);
        painter->setPen(QPen(isSelected ? accent : QColor(160, 160, 160, 160), 1,
                             isSelected ? Qt::SolidLine : Qt::DashLine));
        painter->drawRect(rect);
        painter->setPen(QPen(accent, handle, Qt::SolidLine, Qt::SquareCap));
        if (isSelected)
            painter->drawPoints(QPolygonF(rect)); // its corners
    }
    painter->setPen(magenta);
    for (const QLine& guide : guides)
        painter->drawLine(map.map(QLineF(guide)));
    const AreaFrame* chosen = Find(selected);
    for (bool horizontal : {true, false}) {
        if (showsRulers || dragging)
            PaintRuler(painter, horizontal, chosen ? chosen->rect : QRect());
    }
}

/** Paints a ruler at the upper or left visible edge and marks the extent of @p area on it. */
void DisplayView::PaintRuler(QPainter* painter, bool horizontal, const QRect& area) const
{
    const QRectF seen = visibleRegion().boundingRect();
    const QTransform map = ToWidget();
    const double scale = map.m11();
    const auto along = [&](const QRectF& rect) {
        return horizontal ? QRectF(rect.left(), seen.top(), rect.width(), rulerWidth)
                          : QRectF(seen.left(), rect.top(), rulerWidth, rect.height());
    };
    const QRectF band = along(seen);
    QColor accent = palette().color(QPalette::Highlight);
    accent.setAlpha(90);
    painter->fillRect(band, palette().color(QPalette::Window));
    painter->fillRect(band & along(map.mapRect(QRectF(area))), accent);
    painter->setPen(palette().color(QPalette::WindowText));
    QFont small = font();
    small.setPointSizeF(qMax(6.0, small.pointSizeF() - 2));
    painter->setFont(small);
    int step = 1; // 1, 2, 5, 10, 20, ... pixels
    for (int i = 0; step * scale < numberDistance; ++i)
        step = i % 3 == 1 ? step / 2 * 5 : step * 2;
    const int side = horizontal ? Picture().width() : Picture().height();
    for (int pixel = 0; pixel <= side; pixel += step) {
        const QPointF place = map.map(QPointF(pixel, pixel));
        const double at = std::round(horizontal ? place.x() : place.y()) + 0.5;
        if (horizontal) {
            painter->drawLine(QLineF(at, band.center().y(), at, band.bottom()));
            painter->drawText(QPointF(at + 3, band.bottom() - 4), QString::number(pixel));
        } else {
            painter->drawLine(QLineF(band.center().x(), at, band.right(), at));
            painter->drawText(QRectF(band.left() + 1, at + 1, rulerWidth - 2, numberDistance),
                              int(Qt::AlignHCenter | Qt::TextWrapAnywhere), QString::number(pixel));
        }
    }
}

void DisplayView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::MiddleButton || (spaceHeld && event->button() == Qt::LeftButton)) {
        panning = true;
        panFrom = event->globalPos();
        setCursor(Qt::ClosedHandCursor);
        return;
    }
    if (event->button() != Qt::LeftButton)
        return;
    const QPointF point = event->localPos();
    edges = EdgesAt(point);
    const int id = edges ? selected : FrameAt(point);
    if (id != selected) {
        selected = id;
        emit Selected(id);
    }
    const AreaFrame* frame = Find(id);
    dragging = frame != nullptr;
    if (!frame)
        return;
    ++gesture;
    grabbed = PixelAt(point);
    before = frame->rect;
    update();
}

void DisplayView::mouseMoveEvent(QMouseEvent* event)
{
    if (panning) {
        hasPanned = true;
        emit Panned(event->globalPos() - panFrom);
        panFrom = event->globalPos();
        return;
    }
    const QPointF point = event->localPos();
    if (dragging) {
        const bool snaps = !(event->modifiers() & Qt::ControlModifier);
        const QPoint by = PixelAt(point) - grabbed;
        guides.clear();
        const auto across = Dragged(before.x(), before.x() + before.width(), true, by.x(), snaps);
        const auto down = Dragged(before.y(), before.y() + before.height(), false, by.y(), snaps);
        const QRect rect(across.first, down.first, across.second - across.first,
                         down.second - down.first);
        const AreaFrame* frame = Find(selected);
        if (frame && frame->rect != rect)
            emit AreaChanged(selected, rect, gesture);
        update();
        const QPointF below = ToWidget().map(QPointF(rect.bottomLeft() + QPoint(0, 1)));
        QToolTip::showText(mapToGlobal(below.toPoint()),
                           tr("x %1  y %2  ·  %3 × %4 px")
                               .arg(rect.x())
                               .arg(rect.y())
                               .arg(rect.width())
                               .arg(rect.height()),
                           this);
        return;
    }
    const int under = FrameAt(point);
    if (under != hovered) {
        hovered = under;
        update();
    }
    const Qt::Edges at = EdgesAt(point);
    if (at == (Qt::LeftEdge | Qt::TopEdge) || at == (Qt::RightEdge | Qt::BottomEdge))
        setCursor(Qt::SizeFDiagCursor);
    else if (at == (Qt::RightEdge | Qt::TopEdge) || at == (Qt::LeftEdge | Qt::BottomEdge))
        setCursor(Qt::SizeBDiagCursor);
    else if (at)
        setCursor(at & (Qt::LeftEdge | Qt::RightEdge) ? Qt::SizeHorCursor : Qt::SizeVerCursor);
    else if (under != 0)
        setCursor(Qt::SizeAllCursor);
    else
        unsetCursor();
}

void DisplayView::mouseReleaseEvent(QMouseEvent*)
{
    ++gesture;
    dragging = false;
    panning = false;
    unsetCursor();
    guides.clear();
    update();
}

void DisplayView::contextMenuEvent(QContextMenuEvent* event)
{
    const int id = FrameAt(event->pos());
    if (event->reason() == QContextMenuEvent::Mouse && id != selected)
        emit Selected(id);
    emit MenuWanted(event->globalPos());
}

void DisplayView::wheelEvent(QWheelEvent* event)
{
    if (!(event->modifiers() & Qt::ControlModifier)) {
        event->ignore(); // the scroll area scrolls
        return;
    }
    wheelTurn += event->angleDelta().y();
    const int steps = wheelTurn / wheelStep; // touchpads send less than a step
    wheelTurn %= wheelStep;
    if (steps != 0)
        emit ZoomWanted(steps, event->position());
}

void DisplayView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Space || event->modifiers() != Qt::NoModifier) {
        live::PictureView::keyPressEvent(event);
    } else if (!event->isAutoRepeat()) {
        spaceHeld = true;
        hasPanned = false;
    }
}

void DisplayView::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Alt)
        ++gesture; // the arrow keys before it are one undo step
    if (event->key() != Qt::Key_Space || event->isAutoRepeat() || !spaceHeld) {
        live::PictureView::keyReleaseEvent(event);
        return;
    }
    spaceHeld = false;
    if (!hasPanned)
        emit PlayWanted();
}

void DisplayView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        emit DisplayDoubleClicked();
}

/**
 * The edge of another area or of the display to snap to near @p place, which gets a guide;
 * otherwise @p place.
 */
int DisplayView::Snapped(int place, bool horizontal)
{
    const QSize display = Picture().size();
    const int side = horizontal ? display.width() : display.height();
    QVector<int> magnets{0, side, side / 2};
    for (const AreaFrame& frame : frames) {
        const QRect& rect = frame.rect;
        if (frame.id != selected && horizontal)
            magnets << rect.left() << rect.left() + rect.width();
        else if (frame.id != selected)
            magnets << rect.top() << rect.top() + rect.height();
    }
    const int near = qMax(1, int(snapReach / qMax(0.01, ToWidget().m11())));
    const int best = *std::min_element(magnets.begin(), magnets.end(), [&](int one, int other) {
        return qAbs(one - place) < qAbs(other - place);
    });
    if (best == place || qAbs(best - place) > near)
        return place;
    guides.append(horizontal ? QLine(best, 0, best, display.height())
                             : QLine(0, best, display.width(), best));
    return best;
}

/** The extent of the dragged area in one direction, from @p begin to @p end before. */
QPair<int, int> DisplayView::Dragged(int begin, int end, bool horizontal, int by, bool snaps)
{
    const auto moved = [&](int place) {
        return snaps ? Snapped(place + by, horizontal) : place + by;
    };
    if (!edges) {
        int shift = moved(begin) - begin;
        if (shift == by)
            shift = moved(end) - end;
        return {begin + shift, end + shift};
    }
    if (edges & (horizontal ? Qt::LeftEdge : Qt::TopEdge))
        begin = qMin(end - 1, moved(begin));
    if (edges & (horizontal ? Qt::RightEdge : Qt::BottomEdge))
        end = qMax(begin + 1, moved(end));
    return {begin, end};
}

bool DisplayView::HandleAreaKey(int key, Qt::KeyboardModifiers modifiers)
{
    const AreaFrame* frame = Find(selected);
    if (!frame || !(modifiers & Qt::AltModifier))
        return false;
    const QMap<int, QPoint> ways{{Qt::Key_Left, {-1, 0}},
                                 {Qt::Key_Right, {1, 0}},
                                 {Qt::Key_Up, {0, -1}},
                                 {Qt::Key_Down, {0, 1}}};
    if (!ways.contains(key))
        return false;
    const QPoint by = ways.value(key) * (modifiers & Qt::ControlModifier ? 10 : 1);
    QRect rect = frame->rect;
    if (modifiers & Qt::ShiftModifier)
        rect.setSize(QSize(qMax(1, rect.width() + by.x()), qMax(1, rect.height() + by.y())));
    else
        rect.translate(by);
    emit AreaChanged(selected, rect, gesture);
    return true;
}

} // namespace AnimText::studio::window::display
