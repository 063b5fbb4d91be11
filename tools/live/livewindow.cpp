#include "live/livewindow.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>

namespace AnimText::live {

namespace {

constexpr int largestStandardZoom = 8;

} // namespace

LiveWindow::LiveWindow(LivePlayer* player)
    : player(player)
{
    const QString platform = QGuiApplication::platformName();
    for (const char* bare : {"linuxfb", "eglfs", "vnc"})
        isOnDesktop = isOnDesktop && platform != QLatin1String(bare);
    connect(player, &LivePlayer::Shown, this, &PictureView::SetPicture);
    connect(player, &LivePlayer::Ended, this, &LiveWindow::TellState);
}

void LiveWindow::Open(const QString& title, QSize size, bool fullScreen)
{
    name = title;
    const QSize room = screen()->availableSize() * 4 / 5; // leaves some of the desktop
    const int fitting = qMin(room.width() / size.width(), room.height() / size.height());
    const int zoom = Zoom() > 0 ? Zoom() : qBound(1, fitting, largestStandardZoom);
    windowSize = (size * zoom).boundedTo(room);
    resize(windowSize);
    TellState();
    Present(fullScreen || !isOnDesktop);
}

/** Around the picture, full screen is black like a sign, and a window is gray. */
void LiveWindow::Present(bool fullScreen)
{
    SetSurroundings(fullScreen ? Qt::black : QColor(0x50, 0x50, 0x50));
    setCursor(fullScreen ? Qt::BlankCursor : Qt::ArrowCursor);
    // Without a window manager, showFullScreen() does not resize the window.
    if (fullScreen) {
        setGeometry(screen()->geometry());
        showFullScreen();
    } else {
        showNormal();
        resize(windowSize);
    }
}

void LiveWindow::TellState()
{
    setWindowTitle(player->HasEnded()   ? tr("%1 – at its end").arg(name)
                   : player->IsPaused() ? tr("%1 – paused").arg(name)
                                        : name);
}

void LiveWindow::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Escape: close(); break;
    case Qt::Key_Space:
        player->SetPaused(!player->IsPaused());
        TellState();
        break;
    case Qt::Key_F:
    case Qt::Key_F11:
        if (isOnDesktop)
            Present(!isFullScreen());
        break;
    default: PictureView::keyPressEvent(event);
    }
}

void LiveWindow::mouseDoubleClickEvent(QMouseEvent*)
{
    if (isOnDesktop)
        Present(!isFullScreen());
}

} // namespace AnimText::live
