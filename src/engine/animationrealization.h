#ifndef ANIMATIONREALIZATION_H
#define ANIMATIONREALIZATION_H

#include "paint/dazzlepainter.h"
#include "paint/textcanvas.h"

#include <drawneonbg.h>

#include <QBrush>
#include <QColor>
#include <QConicalGradient>
#include <QImage>
#include <QLinearGradient>
#include <QList>
#include <QObject>
#include <QPainterPath>
#include <QPen>
#include <QPointer>
#include <QRadialGradient>
#include <QSize>
#include <QString>
#include <QTimer>
#include <QVector>

#include <memory>
#include <vector>

class QPainter;

namespace Lw {
namespace HNodeAnimationText {

class HAnimationTextNode;
class LineWidths;

/**
 * The animation of one text: paints it frame by frame, into its picture layer or, without one,
 * into its own image. Its renderer drives it with ticks of 66 ms.
 *
 * Distances are pixels of the area. A page is the part of the text that the area shows at once;
 * pages are counted from 1. A run is one pass over all pages.
 */
class animationRealization : public QObject
{
    Q_OBJECT

public:
    explicit animationRealization(QObject* parent);
    ~animationRealization() override;

    /** Takes @p node, which the host owns, and its attributes. @return 1, or 0 without a node */
    int Init(HAnimationTextNode* node);
    /** Lays the text out and begins at the first character of the first page. */
    void Start();
    void Pause(bool pause);
    void Stop();

    /** One tick: paints a frame, holds a page, or does nothing, depending on the speed. */
    void PrepareImage();

    /**
     * @param forContent true: of the picture that is painted; false: of the layer below it.
     * They differ for a line that scrolls over a neon background.
     */
    QSize CountSize(bool forContent) const;
    void CountTotalHeight();
    void CountPageNum();
    void SelectPath(int forward);
    /** Goes to the next page, or waits while a hold is due. */
    void SwapPage();

    /**
     * The target of frames from now on.
     * @param session the picture session as a number in a pointer; null: nowhere
     * @param a the display's handle  @param b the layer of the text
     */
    void SetPictureSession(void* session, int a, int b);
    /** @param layer of the dazzle background, above 0; 0: none */
    void SetDazzleLayer(int layer);
    /** Finished runs; 0 while a page is held. */
    int GetDisplayTimes() const;

    void DrawInit();
    /** The same paint for every character, whatever @p index. */
    void SetPainterBrush(int index = 0);
    void DrawShadow(int index);
    void DrawDazzleBackground();

    // effects/flyin.cpp
    void FlyFromLeftEffect();
    void FlyFromRightEffect();
    void FlyFromTopEffect();
    void FlyFromBottomEffect();

    // effects/wordbyword.cpp
    void WordForWordOutputEffect();
    void WordForWordAmplificationEffect();
    void WordForWordNarrowEffect();
    void AmplificationNarrow(bool narrow);

    // effects/oscillating.cpp
    void WavesEffect();
    void SwingEffect();
    void BeforeAfterScalEffect();
    void TrembleEffect();
    void EffectShake();

    // effects/rotation.cpp
    void RotationEffect();
    void RotationTrundleEffect();
    void AngleRotationEffect();
    void EffectInTurnFlips();
    void Effect3DHorizontalRotation();
    void EffectFlipsInto();
    void EffectRotateInto();

    // effects/inturn.cpp
    void EffectInTurnUpwardZoom();
    void EffectInTurnDrop();
    void Effect45DegreeAngleDrop();

    // effects/stretchmove.cpp
    void EffectZoomIn();
    void EffectRightToEnlarge();
    void EffectDiagonalMoves();
    void EffectRepeatTheWhereabouts();
    void EffectFromBothSidesInOrderToEnlarge();

    // effects/textzoom.cpp
    void EffectTextZoom();
    /** No effect number selects it: for hosts that call it themselves. */
    void EffectUpwardZoomWithReflection();

    // effects/frogs.cpp
    void EffectTopWithFrogAppearsVerbatim();
    void EffectTopWithFrog();

    // engine/scrolling.cpp
    void ContinueEffectLeft();
    void ContinueEffectRight();
    void ContinueEffectUp();
    void ContinueEffectDown();

public slots:
    /** One animation frame. */
    void DrawAndUpdateImage();
    /** One tick of a page that is held. */
    void UpdateStayImage();
    /** One tick of the dazzle background. */
    void UpdateDazzleBackground();

private:
    Q_DISABLE_COPY(animationRealization)

    // Set-up
    static QImage NewCanvas(const QSize& size, QImage::Format format);
    void LoadFillPicture();
    void MeasureText(const LineWidths& line);
    void ForgetSession();

    // The frame loop
    void WrapLayer();
    void SwapLayer();
    void DrawOrHold(qint64 ticksPerFrame, int counterAfterHold);
    void Dispatch();
    void AddHeldPage();

    // The frame that effects share: engine/frame.h
    bool BeginFrame();
    void EndFrame();
    void ShowFrame();
    static Picture PictureOf(QImage& image);
    template <typename Shape>
    void DrawPage(const Shape& shape);
    template <typename Shape>
    void DrawInTurn(const Shape& shape);
    bool HasGlyph(int j) const;
    const Glyph& GlyphOf(int j);
    void AddGlyph(int j, double x, double y, const Transform& shape = Transform());
    void AddStanding();
    void DrawGlyph(int j, double x, double y);
    int FrameWidth() const;
    int FrameHeight() const;
    int PageStart() const;
    int PageEnd() const;
    int PageLength() const;
    double PageWidth() const;
    int RestX(int j) const;
    int RestY(int j) const;
    double ExactY(int j) const;
    int Phase(int k) const;
    double GatherX(int j, double stretch) const;
    void RotateAbout(double x, double y, double degrees);
    void Advance(int& counter, int step);
    void AdvanceTo(int end, int& counter, int step);
    void TakeNextCharacter();
    bool IsLastPageOver() const;
    void LeavePage();
    void EndRun();
    void HandOver(int& counter);

    // effects/flyin.cpp
    int RightAlignedX(int j) const;
    void DrawFlight(int inFlight, double x, double y);
    void FlyTo(double x, double y);
    void LandVertically(bool landed);
    // effects/frogs.cpp
    void DrawFrog(int frame);
    template <typename DrawCharacter>
    void DrawFrogFrame(const DrawCharacter& drawCharacter);
    // engine/dazzle.cpp
    void WrapDazzleLayer();
    int LeadingColor();
    void DrawPictureBorder(const Box& within, const Picture& picture);
    // engine/scrolling.cpp
    void DrawLine();
    void DrawTails(int first);
    void DrawTail(int first, int end);
    int ColumnLength() const;
    void DrawColumn(bool rises);

    struct Frog
    {
        bool read = false; // or found missing
        QImage picture;    // Format_ARGB32
    };

    // Names and order are the host's. Nothing reads painter, playFinished, initFive, auxBrush, the
    // three gradients, strokePen, shadowEnabled, dazzleEnabled and fillImageSize.

    // The node, and what it asks for.
    QPointer<HAnimationTextNode> node;
    QString text;
    int animationEffect = 0; // an Entrance, when effectType says so
    QSize areaSize;          // pixels
    int speed = 0;           // 0 to 9
    QPainter* painter;

    // Counters of the effect that plays; each effect says what it uses them for.
    int charIndex = 0;
    int charCount = 0;
    int moveOffset2 = 0;
    float progressF = 0;
    bool isDrawing = true; // the next tick paints a frame; false: it holds the page
    int maxTextHeight = 0; // pixels
    int scrollOffset = 0;  // pixels

    // The run.
    bool playFinished = false;
    bool runEnded = false;
    int playTimes = 0;
    int holdTime = 0; // units of 100 ms
    int initFive = 0;
    bool paused = false;

    // The frame.
    QImage drawImage;   // wraps the layer's buffer, if there is a layer
    QImage stayImage;   // wraps the dazzle layer's buffer
    int playCount = 0;  // finished runs
    int pageIndex = 1;  // from 1
    int moveOffset = 0; // of the effect, as above
    DrawNeonBg* neonBg;

    // The text's outlines and metrics in pixels, one entry for each character.
    QVector<QPainterPath> charPaths;
    std::vector<std::unique_ptr<Glyph>> glyphs; // made when first painted
    TextPath textPath;
    Outline auxPath;
    QVector<int> charDescents;
    QVector<int> charWidths;
    QVector<int> charHeights;
    QVector<int> charPositions; // left edges
    int totalTextWidth = 0;
    QVector<QColor> dazzleColors;

    // Where pages begin, then where the last one ends: characters, and pixels of the line.
    QList<int> pageBreaks;
    QList<int> pageOffsets;
    int frameCount = 0; // its remainder leads the dazzle colors

    // Paint.
    QBrush pictureBrush;
    QBrush auxBrush;
    QPen picturePen;
    Transform transform;
    QLinearGradient linearGradient;
    QRadialGradient radialGradient;
    QConicalGradient conicalGradient;
    QPen strokePen;

    // Time and step, from the speed.
    int frameInterval;     // ms
    int totalHeight = 0;   // pixels, of a column
    int stayPageIndex = 1; // from 1
    int stayCounter = 1;   // ticks
    int maxTextWidth = 0;  // pixels
    int tickCounter = 0;   // ticks
    int stepSize = 0;      // of the effect's counters

    // The node's switches.
    int effectType = 0;
    int continueStyle = 0;
    int neonBgEnabled = 0;
    int shadowEnabled = 0;
    int dazzleEnabled = 0;
    int gradientEnabled = 0;
    int gradientType = 0;
    int hollow = 0;
    int stroke = 0;
    int pictureFillEnabled = 0;
    QSize fillImageSize;

    // Layers of the device, and the dazzle background.
    QImage::Format imageFormat = QImage::Format_ARGB32;
    QTimer dazzleTimer;
    int stayImageReady = 0;
    uchar* layerBuffer = 0;   // the device's
    void* pictureSession = 0; // a number in a pointer
    int sessionDisplay = 0;
    int sessionLayer = 0;
    int dazzleLayer = 0;      // 0: none
    int dazzleColorIndex = 0; // the leading color

    // Ours alone.
    qint64 layerBytes = -1; // what the text's layer holds, which the host may have made for another
                            // format; -1 when it is not known
    bool dazzleLayerWrapped = false;
    DazzlePainter dazzle;
    TextCanvas canvas;
    QRgb textColor = 0;
    QVector<Frog> frogPictures;

    friend class HAnimationTextRender;
    friend class EngineProbe;
};

} // namespace HNodeAnimationText
} // namespace Lw

#endif
