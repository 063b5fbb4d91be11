#ifndef HANIMATIONTEXTRENDER_H
#define HANIMATIONTEXTRENDER_H

#include <icontentrender.h>
#include <torvsdk.h>

#include <QDateTime>
#include <QImage>
#include <QObject>
#include <QPointer>
#include <QSize>
#include <QTimer>
#include <QVector>

namespace Lw {
namespace HNodeAnimationText {

class animationRealization;
class HAnimationTextNode;

/**
 * Plays one animated text: owns the engine that paints it, the timer that drives it and the picture
 * session that shows it. The host owns the node and may delete it at any time.
 */
class HAnimationTextRender : public QObject, public IContentRender
{
    Q_OBJECT

public:
    explicit HAnimationTextRender(HAnimationTextNode* node);
    ~HAnimationTextRender() override;

    /**
     * Plays from the beginning; the first frame is painted before it returns.
     * @param displayHandle of the display output; with 0, without a node or with a blank text
     *                      nothing plays
     */
    void Start(unsigned int displayHandle) override;
    /** Pauses or resumes. */
    void Pause() override;
    /** Releases the session; Start() makes a new one. The state stays. */
    void Stop() override;
    void Remove() override;
    /** A renderer plays a single item and has no next one. */
    void PlayNext() override;
    /**
     * 0 finished, 1 playing, 2 nothing to play. Text that scrolls sideways is finished as soon as
     * it has started and scrolls on until it is stopped.
     */
    int renderState() override;

    // The picture session: render/picturesession.cpp

    /** Makes the session for @p image, scrolling or still as the attributes say. */
    void StartInit(QImage& image);
    /** Makes a still session for @p image, for hosts that supply their own pictures. */
    void InitRenderSession(QImage& image);
    void SetSession(Effect* effect, QImage& image);
    /** Appends a layer. @return its index, negative on failure */
    int GetLayerNum(QSize size, int bytesPerLine);
    /** Stacks the layers. */
    void SetPicLayerProperty();
    /**
     * Copies @p image, which has the layer's size, into a layer and shows it; converts it to the
     * layer's format.
     * @param buffer the layer's back buffer, fetched when it is null; the next one afterwards
     */
    void SwapImageData(char** buffer, QImage& image, int layer);

public slots:
    /** One tick of 66 ms. */
    void UpdateDraw();

private:
    Q_DISABLE_COPY(HAnimationTextRender)

    bool ScrollsSideways() const;
    void ReleaseSession();
    void DrawFirstTick();
    void ShowLine();
    void ShowFrames();
    void GiveNeonLayer(int layer, qint64 layerBytes);
    void AppendDazzleLayer();
    unsigned int PixelWord() const;
    int LineDuration();
    int ScheduledDuration();

    QPointer<HAnimationTextNode> node;
    int state;
    unsigned int displayHandle = 0;
    animationRealization* engine;
    bool paused = false;
    int playedTimes = 0;
    PicSession session = 0;
    QVector<int> layerIds; // reserved
    bool firstTick = true;
    QDateTime startTime;
    QImage::Format imageFormat;
    QTimer drawTimer;

    friend class RenderProbe;
};

} // namespace HNodeAnimationText
} // namespace Lw

#endif
