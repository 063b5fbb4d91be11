#include "player/callline.h"

#include "scene/json.h"

#include <QCryptographicHash>

namespace AnimText {

namespace {

Json PixelWord(const Torv::CallRecord& call)
{
    return "0x" + QByteArray::number(call.pixelWord, 16).rightJustified(8, '0');
}

Json Image(const Torv::CallRecord& call)
{
    const PicImage& image = call.image;
    return call.hasImage ? Json::Object({{"width", image.width},
                                         {"height", image.height},
                                         {"bytesPerLine", image.bytesPerLine},
                                         {"bits", image.bits != nullptr}})
                         : Json();
}

Json EffectOf(const Torv::CallRecord& call)
{
    const Effect& effect = call.effect;
    return call.hasEffect ? Json::Object({{"effect1", effect.effect1},
                                          {"duration1", effect.duration1},
                                          {"effect2", effect.effect2},
                                          {"duration2", effect.duration2},
                                          {"effect3", effect.effect3},
                                          {"duration3", effect.duration3}})
                          : Json();
}

Json Placement(const Torv::CallRecord& call)
{
    const PicPlacement& placement = call.placement;
    return call.hasPlacement ? Json::Object({{"x", placement.x},
                                             {"y", placement.y},
                                             {"width", placement.width},
                                             {"height", placement.height},
                                             {"imageWidth", placement.imageWidth},
                                             {"imageHeight", placement.imageHeight}})
                             : Json();
}

void AddArguments(const Torv::CallRecord& call, Json* line)
{
    switch (call.operation) {
    case Torv::OpCreatePictureSession:
        line->Add("type", call.type).Add("image", Image(call)).Add("flags", call.flags);
        line->Add("effect", EffectOf(call)).Add("placement", Placement(call));
        line->Add("pixelWord", PixelWord(call));
        return;
    case Torv::OpGeteffectDuration:
        line->Add("length", call.length).Add("areaHeight", call.areaHeight);
        line->Add("effectCode", call.effectCode).Add("speedIndex", call.speedIndex);
        return;
    case Torv::OpFreePictureSession: line->Add("session", call.session); return;
    default: break;
    }
    line->Add("display", call.display).Add("session", call.session);
    switch (call.operation) {
    case Torv::OpAddPictureSession: line->Add("reserved", call.reserved); break;
    case Torv::OpPicAppendImageLayer:
        line->Add("width", call.width).Add("height", call.height);
        line->Add("bytesPerLine", call.bytesPerLine).Add("pixelWord", PixelWord(call));
        break;
    case Torv::OpGetPicImageLayerPtr: line->Add("layer", call.layer).Add("mode", call.mode); break;
    case Torv::OpSwapPicImageLayerPtr: line->Add("layer", call.layer); break;
    case Torv::OpSetPicLayerBlend: line->Add("layer", call.layer).Add("value", call.value); break;
    default: break;
    }
}

Json Result(const Torv::CallRecord& call)
{
    const bool isBuffer = call.operation == Torv::OpGetPicImageLayerPtr ||
                          call.operation == Torv::OpSwapPicImageLayerPtr;
    if (!isBuffer)
        return call.result;
    return call.result < 0 ? Json() : Json("buffer " + QByteArray::number(call.result));
}

} // namespace

QByteArray CallLine(const Torv::CallRecord& call)
{
    Json line = Json::Object({{"call", Torv::OperationName(call.operation)}});
    AddArguments(call, &line);
    line.Add("result", Result(call));
    if (call.problem)
        line.Add("problem", call.problem);
    return line.Text();
}

QByteArray Sha1Of(const QImage& picture)
{
    if (picture.isNull())
        return QByteArray();
    QCryptographicHash hash(QCryptographicHash::Sha1);
    const int bytesPerRow = picture.width() * picture.depth() / 8;
    for (int y = 0; y < picture.height(); ++y)
        hash.addData(reinterpret_cast<const char*>(picture.constScanLine(y)), bytesPerRow);
    return hash.result().toHex();
}

} // namespace AnimText
