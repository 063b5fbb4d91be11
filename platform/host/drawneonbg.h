/**
 * @file
 * Integrators: replace with the host's own header; the plugin needs what is declared here.
 */
#ifndef LW_DRAWNEONBG_H
#define LW_DRAWNEONBG_H

#include <QImage>
#include <QObject>

namespace Lw {

class HNode;

/**
 * The host's neon animator: paints a moving background into a picture layer of its own, on its own
 * timer. It paints only while it has a session, and swaps the layer itself.
 */
class DrawNeonBg : public QObject
{
    Q_OBJECT

public:
    explicit DrawNeonBg(QObject* parent = 0);
    ~DrawNeonBg() override;

    /**
     * Takes area size, style and pictures from @p node and begins with the first picture. An area
     * that is empty or larger than 256 MiB has no image. Once the node is deleted nothing is
     * painted.
     */
    virtual void InitNode(HNode* node);

    /**
     * Continues from the picture at which it stopped; does nothing without a node.
     * @param interval milliseconds from one picture to the next
     */
    void StartTimerDraw(int interval);
    void StopTimerDraw();

    /** The picture that is painted; its size and bytes per line are those of the layer it needs. */
    const QImage& Image() const;

    /** Where the pictures go; written by the renderer that owns the session, 0 for nowhere. */
    void* pictureSession = 0;
    unsigned int displayHandle = 0;
    int layer = 0;

private slots:
    void DrawNext();

private:
    Q_DISABLE_COPY(DrawNeonBg)

    class Private;
    Private* d;
};

} // namespace Lw

#endif
