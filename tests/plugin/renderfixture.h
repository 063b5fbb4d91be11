/**
 * @file
 * A renderer that plays a text of rectangles on an emulated display, its calls of the device told
 * in short words, on virtual time.
 */
#pragma once

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
    AnimText::player::VirtualDispatcher* const clock =
        AnimText::player::VirtualDispatcher::Current();
    clock->AdvanceTo(clock->Now() + ticks * tickInterval);
}

/**
 * A call of the device in a word: "append(60x41)=1", "get1", "swap1", "blend0=2",
 * with ! behind it when it came to nothing.
 */
inline QString ShortCall(const QString& line)
{
    const QJsonObject call = QJsonDocument::fromJson(line.toUtf8()).object();
    const QString name = call["call"].toString();
    const auto number = [](const QJsonObject& of, const char* key) {
        return QString::number(of[QLatin1String(key)].toInt());
    };
    const auto size = [&number](const QJsonObject& of) {
        return number(of, "width") + 'x' + number(of, "height");
    };
    // What is as in most sessions is left out: 32 bits, no effect, the picture where its area is.
    const auto unless = [](const QString& usual, const QString& text) {
        return text == usual ? QString() : ',' + text;
    };
    const auto rows = [&](const QJsonObject& of) {
        return size(of) +
               unless(QString::number(4 * of["width"].toInt()), number(of, "bytesPerLine"));
    };
    const QString word = unless("0xff010201", call["pixelWord"].toString());
    const QString failed = call.contains("problem") ? "!" : "";
    if (name == "CreatePictureSession") {
        const QJsonObject image = call["image"].toObject(), effect = call["effect"].toObject(),
                          at = call["placement"].toObject();
        QStringList effects;
        for (const char* key :
             {"effect1", "duration1", "effect2", "duration2", "effect3", "duration3"})
            effects.append(number(effect, key));
        const QString place = QString("%1 %2 %3 of %4x%5")
                                  .arg(number(at, "x"), number(at, "y"), size(at),
                                       number(at, "imageWidth"), number(at, "imageHeight"));
        return "create(" + rows(image) + unless("3", number(call, "type")) +
               unless("16", number(call, "flags")) + unless("0 0 0 0 0 66", effects.join(' ')) +
               unless("0 0 " + size(image) + " of " + size(image), place) + word + ')' + failed;
    }
    if (name == "PicAppendImageLayer")
        return "append(" + rows(call) + word + ")=" + number(call, "result") + failed;
    if (name == "GetPicImageLayerPtr")
        return "get" + number(call, "layer") + (call["mode"].toInt() == 5 ? "" : "?") + failed;
    if (name == "SwapPicImageLayerPtr")
        return "swap" + number(call, "layer") + failed;
    if (name == "SetPicLayerBlend")
        return "blend" + number(call, "layer") + '=' + number(call, "value") + failed;
    if (name == "GeteffectDuration")
        return QString("duration(%1,%2,%3,%4)")
            .arg(number(call, "length"), number(call, "areaHeight"), number(call, "effectCode"),
                 number(call, "speedIndex"));
    return (name == "AddPictureSession"      ? "add" + unless("0", number(call, "reserved"))
            : name == "RemovePictureSession" ? "remove"
                                             : "free") +
           failed;
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
                static_cast<RenderFixture*>(fixture)->log.append(AnimText::player::CallLine(call));
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

    /** All calls in short words. */
    QString ShortCalls() const
    {
        QStringList words;
        for (const QString& line : log)
            words.append(ShortCall(line));
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
        QCoreApplication::setEventDispatcher(new AnimText::player::VirtualDispatcher);             \
        QGuiApplication application(argc, argv);                                                   \
        TestClass test;                                                                            \
        return QTest::qExec(&test, argc, argv);                                                    \
    }
