#include "drawneonbg.h"

#include "hcontentnode.h"
#include "hneonnodebase.h"
#include "hpluginmanager.h"
#include "neon/neonborder.h"
#include "neon/neonfilm.h"

#include "torvsdk.h"

#include <QPointer>
#include <QTimer>

#include <cstring>
#include <memory>

namespace Lw {

namespace {

const int LastBorderStyle = 28; // above it the style is a film
const int ForWriting = 5;
const qint64 LargestImage = qint64(256) << 20; // bytes

QImage BlankImage(QSize size, QImage::Format format)
{
    const int bytesPerPixel = format == QImage::Format_ARGB32 ? 4 : 3;
    if (size.isEmpty() || qint64(size.width()) * size.height() > LargestImage / bytesPerPixel)
        return QImage();
    QImage image(size, format);
    if (!image.isNull())
        image.fill(0);
    return image;
}

} // namespace

class DrawNeonBg::Private
{
public:
    QPointer<HNode> node;
    QImage image;
    QTimer* timer = 0; ///< the animator's child, so that tests that count timers find it
    int interval = 66;
    qint64 tick = 0; ///< pictures painted since InitNode()
    std::unique_ptr<NeonBorder> border;
    std::unique_ptr<NeonFilm> film;
};

DrawNeonBg::DrawNeonBg(QObject* parent)
    : QObject(parent)
    , d(new Private)
{
    d->timer = new QTimer(this);
#if QT_VERSION >= 0x050000
    d->timer->setTimerType(Qt::PreciseTimer); // a coarse one would fire every 64 ms instead of 66
#endif
    connect(d->timer, SIGNAL(timeout()), this, SLOT(DrawNext()));
}

DrawNeonBg::~DrawNeonBg()
{
    delete d;
}

void DrawNeonBg::InitNode(HNode* node)
{
    d->node = node;
    d->tick = 0;
    d->image = QImage();
    d->border.reset();
    d->film.reset();

    HContentNode* const content = qobject_cast<HContentNode*>(node);
    if (!content)
        return;
    // HNeonNodeBase has no meta-object, so qobject_cast cannot tell it from its base.
    const HNeonNodeBase* const neon = dynamic_cast<HNeonNodeBase*>(node);
    const int style = neon ? neon->GetNeonEffect() : 0;
    d->image = BlankImage(content->Size(), HPluginManager::instance()->SuportAlphaBlend(node)
                                               ? QImage::Format_ARGB32
                                               : QImage::Format_RGB888);
    if (d->image.isNull())
        return;
    if (style > LastBorderStyle)
        d->film.reset(new NeonFilm(content->GetFirstFile(QLatin1String("NeonGifPath"))));
    else
        d->border.reset(new NeonBorder(d->image.size(), style));
}

void DrawNeonBg::StartTimerDraw(int interval)
{
    if (!d->node)
        return;
    d->interval = qMax(1, interval);
    d->timer->start(d->interval);
}

void DrawNeonBg::StopTimerDraw()
{
    d->timer->stop();
}

const QImage& DrawNeonBg::Image() const
{
    return d->image;
}

void DrawNeonBg::DrawNext()
{
    if (!d->node || d->image.isNull() || !pictureSession || displayHandle == 0 || layer < 0)
        return;

    if (d->border)
        d->border->Paint(d->image, d->tick);
    else if (!d->film || !d->film->Paint(d->image, d->tick * d->interval))
        return;
    ++d->tick;

    const PicSession session = PicSession(reinterpret_cast<quintptr>(pictureSession));
    char* const buffer = GetPicImageLayerPtr(displayHandle, session, layer, ForWriting);
    if (!buffer)
        return;
    std::memcpy(buffer, d->image.constBits(), size_t(d->image.bytesPerLine()) * d->image.height());
    SwapPicImageLayerPtr(displayHandle, session, layer);
}

} // namespace Lw
