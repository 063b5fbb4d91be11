/**
 * @file
 * A widget that shows one picture, exactly: as pixels or as the lamps of a sign.
 */
#ifndef ANIMTEXT_PICTUREVIEW_H
#define ANIMTEXT_PICTUREVIEW_H

#include <QColor>
#include <QImage>
#include <QTransform>
#include <QWidget>

namespace AnimText {

/**
 * The pixels of @p picture, which has no alpha, as round lamps on black.
 * @param size pixels from lamp to lamp
 * @param pitch the same in diameters of a lamp, 1 .. 4
 */
QImage AsLamps(const QImage& picture, int size, double pitch);

/**
 * Every pixel of the picture becomes a square, or a round lamp, of a whole number of the screen's
 * own pixels, so that nothing is blurred; only a picture that is to fit into less than its own size
 * is scaled down smoothly. A picture smaller than the widget stands in the middle of it, a larger
 * one at the top left. In a QScrollArea with a resizable widget, a fixed zoom scrolls.
 */
class PictureView : public QWidget
{
    Q_OBJECT

public:
    enum class Beneath { Black, Chequered };

    explicit PictureView(QWidget* parent = nullptr);

    /** The picture as it was given; its device pixel ratio is not looked at. */
    const QImage& Picture() const { return picture; }
    void SetPicture(const QImage& picture);

    /** Points of the desk to a pixel of the picture, 1 .. 64; 0 fits it into the widget. */
    int Zoom() const { return zoom; }
    void SetZoom(int zoom);
    /** The screen's own pixels to a pixel of the picture; whole unless it is to fit. */
    double Scale() const;

    /**
     * From lamp to lamp, in diameters of a lamp, 1 .. 4; 0 shows plain pixels, as does a scale
     * below smallestLamp. Lamps stand on black.
     */
    double Pitch() const { return pitch; }
    void SetPitch(double pitch);
    static constexpr int smallestLamp = 4; ///< the screen's own pixels from lamp to lamp

    /**
     * Whether a picture that is to fit fills the room: where whole numbers would leave a fifth of
     * it unused, up to four times its size, its pixels become squares with soft edges.
     */
    void SetFillsRoom(bool fills);

    void SetBeneath(Beneath beneath);
    /** What is seen around the picture; a grey by which colours are judged right. */
    void SetSurroundings(const QColor& color);
    /** For a picture that is no longer true. */
    void SetDimmed(bool dimmed);

    /** From the picture's coordinates, in which a pixel is 1 × 1, to the widget's. */
    QTransform ToWidget() const;
    /** The pixel under a point of the widget, or beyond the picture's edges. */
    QPoint PixelAt(const QPointF& point) const;

    /**
     * The picture read back from what the widget paints, without what lies over it: a test compares
     * it with Picture(). Null where lamps or a scale that is not whole leave no pixel as it is.
     */
    QImage GrabPicture() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /** Another zoom, or another scale because the widget's size changed. */
    void ScaleChanged(double scale);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    /** Draws over the picture, in the widget's coordinates; see ToWidget(). */
    virtual void PaintOverlay(QPainter* painter);

private:
    bool ShowsLamps() const;
    QRect Place() const;
    void Paint(QPainter* painter) const;
    QImage Magnified(const QRect& part) const;
    void LookChanged();

    QImage picture;
    QImage pixels; // the same, over what lies beneath
    QColor surroundings;
    Beneath beneath = Beneath::Black;
    int zoom = 0;
    double pitch = 0;
    double lastScale = 0;
    bool dimmed = false;
    bool fillsRoom = false;
};

} // namespace AnimText

#endif
