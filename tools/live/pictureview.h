/**
 * @file
 * A widget that shows one picture exactly, as square pixels or as a sign's round LEDs.
 */
#pragma once

#include <QColor>
#include <QImage>
#include <QTransform>
#include <QWidget>

namespace AnimText::live {

/**
 * Each pixel of the picture becomes a square or a round LED of a whole number of physical pixels,
 * so that nothing is blurred. Only a picture that must fit into less than its own size is scaled
 * down smoothly. A picture smaller than the widget is centered; a larger one starts at the top
 * left. In a QScrollArea with a resizable widget, a fixed zoom scrolls.
 */
class PictureView : public QWidget
{
    Q_OBJECT

public:
    /**
     * @param fillsRoom whether a fitted picture may use the whole widget: below a scale of 4, where
     * a whole number would leave a fifth of it unused, its pixels become squares with soft edges.
     * Fitted LEDs then ask for the room that makes them visible.
     */
    explicit PictureView(QWidget* parent = nullptr, bool fillsRoom = false);

    /** The picture as it was set; its device pixel ratio is ignored. */
    const QImage& Picture() const { return picture; }
    void SetPicture(const QImage& picture);

    /** Logical pixels per pixel of the picture, 1 to 64; 0 fits it into the widget. */
    int Zoom() const { return zoom; }
    void SetZoom(int zoom);
    /** Physical pixels per pixel of the picture; a whole number unless the picture is fitted. */
    double Scale() const;

    /**
     * Distance from LED to LED in LED diameters, 1 to 4. 0 shows plain pixels, and so does a scale
     * too small for LEDs. LEDs are shown on black.
     */
    double Pitch() const { return pitch; }
    void SetPitch(double pitch);

    /** Shows transparent pixels over a pattern instead of over black. */
    void SetCheckered(bool checkered);
    /** The color around the picture; next to gray, colors are judged correctly. */
    void SetSurroundings(const QColor& color);
    /** Marks a picture that is out of date. */
    void SetDimmed(bool dimmed);

    /** Maps the picture's coordinates, in pixels, to the widget's. */
    QTransform ToWidget() const;
    /** The pixel under @p point of the widget; it may be outside the picture. */
    QPoint PixelAt(const QPointF& point) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    /** Draws over the picture in the widget's coordinates; see ToWidget(). */
    virtual void PaintOverlay(QPainter* painter);

private:
    bool ShowsLamps() const;
    QRect Place() const;
    void Paint(QPainter* painter) const;
    void LookChanged();

    QImage picture;
    QImage pixels; // the picture on its background
    QColor surroundings;
    int zoom = 0;
    double pitch = 0;
    bool checkered = false;
    bool dimmed = false;
    const bool fillsRoom;
};

} // namespace AnimText::live
