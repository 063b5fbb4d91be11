/**
 * @file
 * The window in which a scene plays: Space pauses, F fills the screen, Esc ends.
 */
#pragma once

#include "live/liveplayer.h"
#include "live/pictureview.h"

namespace AnimText::live {

/** Shows a player's picture. Without a desktop it fills the screen. */
class LiveWindow : public PictureView
{
    Q_OBJECT

public:
    /** @param player outlives the window */
    explicit LiveWindow(LivePlayer* player);

    /** Shows the window for pictures of @p size: at the zoom that was set, or as large as the
     * screen allows. */
    void Open(const QString& name, QSize size, bool fullScreen);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void Present(bool fullScreen);
    void TellState();

    LivePlayer* player;
    QString name;
    QSize windowSize; // on the desktop
    bool isOnDesktop = true;
};

} // namespace AnimText::live
