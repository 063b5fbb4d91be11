/**
 * @file
 * A renderer that plays a text of rectangles on an emulated display, its calls of the device told
 * in short words, on virtual time.
 */
#ifndef TESTS_RENDERFIXTURE_H
#define TESTS_RENDERFIXTURE_H

#include "probes.h"
#include "rectangletext.h"

#include "player/callline.h"
#include "player/virtualdispatcher.h"
#include <display.h>
#include <drawneonbg.h>
#include <hpluginmanager.h>

#include <QJsonDocument>
#include <QJsonObject>

using Lw::HPluginManager;
using Lw::HNodeAnimationText::EngineProbe;
using Lw::HNodeAnimationText::HAnimationTextRender;
using Lw::HNodeAnimationText::RenderProbe;

const int tickInterval = 66; // ms

/** Lets @p ticks of the renderers' timers pass. */
inline void PassTicks(int ticks)
{
    AnimText::VirtualDispatcher* const clock = AnimText::VirtualDispatcher::Current();
    clock->AdvanceTo(clock->Now() + ticks * tickInterval);
}

class RenderFixture
{
public:
    explicit RenderFixture(RectangleText shape = RectangleText::TwoPages())
        : text(std::move(shape))
        , render(new HAnimationTextRender(text.node.get()))
    {
        Torv::SetCallLog(
            [](void* fixture, const Torv::CallRecord& call) {
                static_cast<RenderFixture*>(fixture)->log.append(AnimText::CallLine(call));
            },
            this);
    }

    ~RenderFixture()
    {
        render.reset();
        Torv::SetCallLog(nullptr, nullptr);
        Torv::ClearFaults();
        HPluginManager::instance()->SetAlphaBlend(true);
    }

    void Start(std::initializer_list<std::pair<const char*, int>> attributes)
    {
        text.Set(attributes);
        log.clear();
        render->Start(display.Handle());
    }

    RenderProbe Probe() const { return RenderProbe(*render); }

    /** The calls of @p name as they were logged. */
    QList<QJsonObject> Calls(const QString& name) const
    {
        QList<QJsonObject> calls;
        for (const QString& line : log) {
            const QJsonObject call = QJsonDocument::fromJson(line.toUtf8()).object();
            if (call["call"] == name)
                calls.append(call);
        }
        return calls;
    }

    /** All calls: "create(60x41) add append(60x41)=1 get1 swap1 blend0=0 remove free duration". */
    QString ShortCalls() const
    {
        QStringList words;
        for (const QString& line : log) {
            const QJsonObject call = QJsonDocument::fromJson(line.toUtf8()).object();
            const QString name = call["call"].toString();
            const auto number = [&call](const char* key) {
                return QString::number(call[QLatin1String(key)].toInt());
            };
            const auto size = [](const QJsonObject& of) {
                return QString("(%1x%2)").arg(of["width"].toInt()).arg(of["height"].toInt());
            };
            if (name == "CreatePictureSession")
                words.append("create" + size(call["image"].toObject()));
            else if (name == "AddPictureSession")
                words.append("add");
            else if (name == "PicAppendImageLayer")
                words.append("append" + size(call) + "=" + number("result"));
            else if (name == "GetPicImageLayerPtr")
                words.append("get" + number("layer"));
            else if (name == "SwapPicImageLayerPtr")
                words.append("swap" + number("layer"));
            else if (name == "SetPicLayerBlend")
                words.append("blend" + number("layer") + "=" + number("value"));
            else if (name == "RemovePictureSession")
                words.append("remove");
            else if (name == "FreePictureSession")
                words.append("free");
            else
                words.append("duration");
        }
        return words.join(' ');
    }

    RectangleText text;
    Torv::Display display{QSize(200, 100)};
    std::unique_ptr<HAnimationTextRender> render;
    QStringList log;
};

/** The main function of a test on virtual time. */
#define TEST_MAIN_ON_VIRTUAL_TIME(TestClass)                                                       \
    int main(int argc, char** argv)                                                                \
    {                                                                                              \
        QCoreApplication::setEventDispatcher(new AnimText::VirtualDispatcher);                     \
        QGuiApplication application(argc, argv);                                                   \
        TestClass test;                                                                            \
        return QTest::qExec(&test, argc, argv);                                                    \
    }

#endif
