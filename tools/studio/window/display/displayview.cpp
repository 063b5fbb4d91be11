#include "studio/window/display/displayview.h"

#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace AnimText {
namespace {

constexpr int reach = 6;     // logical pixels from an edge at which the mouse drags it
constexpr int snapReach = 6; // logical pixels at which edges snap to each other
constexpr int handle = 6;    // logical pixels
constexpr int rulerWidth = 18;
constexpr int numberDistance = 44; // between the numbers of a ruler
constexpr int wheelStep = 120;     // eighths of a degree

} // namespace

DisplayView::DisplayView(QWidget* parent)
    : PictureView(parent)
{
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Display"));
    setAccessibleDescription(tr("What the sign shows at the current tick"));
}

void DisplayView::SetFrames(const QVector<AreaFrame>& areas)
{
    frames = areas;
    update();
}

void DisplayView::SetSelected(int id)
{
    selected = id;
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
    compared = other;
    FindDifferences();
    update();
}

void DisplayView::FindDifferences()
{
    differences.clear();
    const QImage& mine = Picture();
    if (compared.isNull() || compared.size() != mine.size())
        return;
    for (int y = 0; y < mine.height(); ++y) {
        const auto* a = reinterpret_cast<const QRgb*>(mine.constScanLine(y));
        const auto* b = reinterpret_cast<const QRgb*>(compared.constScanLine(y));
        for (int x = 0; x < mine.width(); ++x) {
            if (a[x] != b[x])
                differences.append(QPoint(x, y));
        }
    }
}

const AreaFrame* DisplayView::Find(int id) const
{
    for (const AreaFrame& frame : frames) {
        if (frame.id == id)
            return &frame;
    }
    return nullptr;
}

/** The topmost area at @p point, but the selected one first: it can be dragged under another. */
int DisplayView::FrameAt(const QPointF& point) const
{
    const AreaFrame* chosen = Find(selected);
    const QTransform map = ToWidget();
    const auto holds = [&](const AreaFrame& frame) {
        return map.mapRect(QRectF(frame.rect)).adjusted(-2, -2, 2, 2).contains(point);
    };
    if (chosen && holds(*chosen))
        return chosen->id;
    for (int i = frames.size() - 1; i >= 0; --i) {
        if (holds(frames.at(i)))
            return frames.at(i).id;
    }
    return 0;
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
    if (!differences.isEmpty()) {
        for (const QPoint& pixel : differences)
            painter->fillRect(map.mapRect(QRectF(pixel, QSizeF(1, 1))).adjusted(-1, -1, 1, 1),
                              QColor(255, 0, 160));
    }
    for (const AreaFrame& frame : frames) {
        const bool isSelected = frame.id == selected;
        if (!isSelected && frame.id != hovered && !showsAll)
            continue;
        const bool isQuiet = isSelected && hovered == 0 && !hasFocus() && !showsAll;
        if (isQuiet)
            continue;
        const QRectF rect = map.mapRect(QRectF(frame.rect)).adjusted(-1, -1, 0, 0);
        painter->setPen(QPen(isSelected ? accent : QColor(160, 160, 160, 160), 1,
                             isSelected ? Qt::SolidLine : Qt::DashLine));
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(rect);
        if (!isSelected)
            continue;
        painter->setBrush(accent);
        painter->setPen(Qt::NoPen);
        for (const QPointF& corner :
             {rect.topLeft(), rect.topRight(), rect.bottomLeft(), rect.bottomRight()})
            painter->drawRect(
                QRectF(corner.x() - handle / 2.0, corner.y() - handle / 2.0, handle, handle));
    }
    painter->setPen(QPen(QColor(255, 0, 160), 1));
    for (const QLine& guide : guides)
        painter->drawLine(map.map(QLineF(guide)));
    const AreaFrame* chosen = Find(selected);
    if (showsRulers || dragging) {
        PaintRuler(painter, true, chosen ? chosen->rect : QRect());
        PaintRuler(painter, false, chosen ? chosen->rect : QRect());
    }
    if (dragging && chosen)
        PaintMeasures(painter, chosen->rect);
}

/** Paints a ruler at the upper or left visible edge and marks the extent of @p area on it. */
void DisplayView::PaintRuler(QPainter* painter, bool horizontal, const QRect& area) const
{
    const QRectF seen = visibleRegion().boundingRect();
    const QTransform map = ToWidget();
    const double scale = map.m11();
    const QRectF band(seen.topLeft(), horizontal ? QSizeF(seen.width(), rulerWidth)
                                                 : QSizeF(rulerWidth, seen.height()));
    const auto place = [&](double pixel) {
        return horizontal ? map.map(QPointF(pixel, 0)).x() : map.map(QPointF(0, pixel)).y();
    };
    const auto line = [&](double at, double length) {
        painter->drawLine(horizontal ? QLineF(at, band.bottom() - length, at, band.bottom())
                                     : QLineF(band.right() - length, at, band.right(), at));
    };
    const auto stretch = [&](double from, double to) {
        return horizontal ? QRectF(from, band.top(), to - from, rulerWidth)
                          : QRectF(band.left(), from, rulerWidth, to - from);
    };
    painter->fillRect(band, palette().color(QPalette::Window));
    if (!area.isEmpty()) {
        QColor accent = palette().color(QPalette::Highlight);
        accent.setAlpha(90);
        const int first = horizontal ? area.x() : area.y();
        painter->fillRect(
            stretch(place(first), place(first + (horizontal ? area.width() : area.height()))) &
                band,
            accent);
    }
    painter->setPen(palette().color(QPalette::WindowText));
    QFont small = font();
    small.setPointSizeF(qMax(6.0, small.pointSizeF() - 2));
    painter->setFont(small);
    int step = 1; // 1, 2, 5, 10, 20, ... pixels
    for (int i = 0; step * scale < numberDistance; ++i)
        step = i % 3 == 1 ? step / 2 * 5 : step * 2;
    const int side = horizontal ? Picture().width() : Picture().height();
    for (int pixel = 0; pixel <= side; pixel += step) {
        const double at = std::round(place(pixel)) + 0.5;
        line(at, rulerWidth / 2.0);
        if (horizontal)
            painter->drawText(QPointF(at + 3, band.bottom() - 4), QString::number(pixel));
        else
            painter->drawText(QRectF(band.left() + 1, at + 1, rulerWidth - 2, numberDistance),
                              int(Qt::AlignHCenter | Qt::TextWrapAnywhere), QString::number(pixel));
    }
}

/** Paints position and size beside the dragged area. */
void DisplayView::PaintMeasures(QPainter* painter, const QRect& area) const
{
    const QString words = tr("x %1  y %2  ·  %3 × %4 px")
                              .arg(area.x())
                              .arg(area.y())
                              .arg(area.width())
                              .arg(area.height());
    painter->setFont(font());
    QRectF box(QPointF(),
               QSizeF(fontMetrics().horizontalAdvance(words) + 16, fontMetrics().height() + 8));
    const QRectF seen = visibleRegion().boundingRect();
    const QRectF rect = ToWidget().mapRect(QRectF(area));
    box.moveTopLeft({rect.left(), rect.bottom() + 8});
    if (box.bottom() > seen.bottom())
        box.moveBottom(qMin(rect.top(), seen.bottom()) - 8);
    box.moveLeft(qBound(seen.left(), box.left(), qMax(seen.left(), seen.right() - box.width())));
    painter->fillRect(box, palette().color(QPalette::ToolTipBase));
    painter->setPen(palette().color(QPalette::ToolTipText));
    painter->drawText(box, Qt::AlignCenter, words);
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
        const QRect rect = Dragged(PixelAt(point) - grabbed, snaps);
        const AreaFrame* frame = Find(selected);
        if (frame && frame->rect != rect)
            emit AreaChanged(selected, rect, gesture);
        update();
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
    else if (at & (Qt::LeftEdge | Qt::RightEdge))
        setCursor(Qt::SizeHorCursor);
    else if (at)
        setCursor(Qt::SizeVerCursor);
    else if (under != 0)
        setCursor(Qt::SizeAllCursor);
    else
        unsetCursor();
}

void DisplayView::mouseReleaseEvent(QMouseEvent*)
{
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
        PictureView::keyPressEvent(event);
        return;
    }
    if (event->isAutoRepeat())
        return;
    spaceHeld = true;
    hasPanned = false;
}

void DisplayView::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Space || event->isAutoRepeat() || !spaceHeld) {
        PictureView::keyReleaseEvent(event);
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

void DisplayView::leaveEvent(QEvent*)
{
    hovered = 0;
    update();
}

/** The edge of another area or of the display to snap to near @p place; otherwise @p place. */
int DisplayView::Snapped(int place, bool horizontal) const
{
    const QSize display = Picture().size();
    const int side = horizontal ? display.width() : display.height();
    QVector<int> magnets{0, side, side / 2};
    for (const AreaFrame& frame : frames) {
        if (frame.id == selected)
            continue;
        if (horizontal)
            magnets << frame.rect.left() << frame.rect.left() + frame.rect.width();
        else
            magnets << frame.rect.top() << frame.rect.top() + frame.rect.height();
    }
    const double scale = ToWidget().m11();
    const int near = qMax(1, int(snapReach / qMax(0.01, scale)));
    int best = place;
    int distance = near + 1;
    for (int magnet : magnets) {
        if (qAbs(magnet - place) < distance) {
            distance = qAbs(magnet - place);
            best = magnet;
        }
    }
    return best;
}

QRect DisplayView::Dragged(const QPoint& by, bool snaps)
{
    guides.clear();
    const QSize display = Picture().size();
    int left = before.left();
    int top = before.top();
    int right = left + before.width();
    int bottom = top + before.height();
    const auto snapped = [&](int place, bool horizontal) {
        const int to = snaps ? Snapped(place, horizontal) : place;
        if (snaps && to != place)
            guides.append(horizontal ? QLine(to, 0, to, display.height())
                                     : QLine(0, to, display.width(), to));
        return to;
    };
    if (!edges) {
        const auto moved = [&](int first, int last, int d, bool horizontal) {
            const int begin = snapped(first + d, horizontal);
            if (begin != first + d)
                return begin - first;
            return snapped(last + d, horizontal) - last;
        };
        const QPoint shift(moved(left, right, by.x(), true), moved(top, bottom, by.y(), false));
        return before.translated(shift);
    }
    if (edges & Qt::LeftEdge)
        left = qMin(right - 1, snapped(left + by.x(), true));
    if (edges & Qt::RightEdge)
        right = qMax(left + 1, snapped(right + by.x(), true));
    if (edges & Qt::TopEdge)
        top = qMin(bottom - 1, snapped(top + by.y(), false));
    if (edges & Qt::BottomEdge)
        bottom = qMax(top + 1, snapped(bottom + by.y(), false));
    return {left, top, right - left, bottom - top};
}

bool DisplayView::HandleAreaKey(int key, Qt::KeyboardModifiers modifiers)
{
    const AreaFrame* frame = Find(selected);
    if (!frame || !(modifiers & Qt::AltModifier))
        return false;
    const int step = modifiers & Qt::ControlModifier ? 10 : 1;
    QPoint by;
    switch (key) {
    case Qt::Key_Left: by = {-step, 0}; break;
    case Qt::Key_Right: by = {step, 0}; break;
    case Qt::Key_Up: by = {0, -step}; break;
    case Qt::Key_Down: by = {0, step}; break;
    default: return false;
    }
    QRect rect = frame->rect;
    if (modifiers & Qt::ShiftModifier)
        rect.setSize(QSize(qMax(1, rect.width() + by.x()), qMax(1, rect.height() + by.y())));
    else
        rect.translate(by);
    emit AreaChanged(selected, rect, 0);
    return true;
}

} // namespace AnimText
