#include "player/callline.h"

#include <QCryptographicHash>

namespace AnimText {

namespace {

/** A JSON object in the making; what it holds needs no escaping. */
class Object
{
public:
    Object& Add(const char* name, const QByteArray& json)
    {
        members += (members.isEmpty() ? "\"" : ",\"") + QByteArray(name) + "\":" + json;
        return *this;
    }
    Object& Add(const char* name, qint64 number) { return Add(name, QByteArray::number(number)); }
    QByteArray Json() const { return '{' + members + '}'; }

private:
    QByteArray members;
};

QByteArray Quoted(const QByteArray& text)
{
    return '"' + text + '"';
}

QByteArray PixelWord(const Torv::CallRecord& call)
{
    return Quoted("0x" + QByteArray::number(call.pixelWord, 16).rightJustified(8, '0'));
}

QByteArray Image(const Torv::CallRecord& call)
{
    const PicImage& image = call.image;
    return call.hasImage ? Object()
                               .Add("width", image.width)
                               .Add("height", image.height)
                               .Add("bytesPerLine", image.bytesPerLine)
                               .Add("bits", QByteArray(image.bits ? "true" : "false"))
                               .Json()
                         : QByteArray("null");
}

QByteArray EffectOf(const Torv::CallRecord& call)
{
    const Effect& effect = call.effect;
    return call.hasEffect ? Object()
                                .Add("effect1", effect.effect1)
                                .Add("duration1", effect.duration1)
                                .Add("effect2", effect.effect2)
                                .Add("duration2", effect.duration2)
                                .Add("effect3", effect.effect3)
                                .Add("duration3", effect.duration3)
                                .Json()
                          : QByteArray("null");
}

QByteArray Placement(const Torv::CallRecord& call)
{
    const PicPlacement& placement = call.placement;
    return call.hasPlacement ? Object()
                                   .Add("x", placement.x)
                                   .Add("y", placement.y)
                                   .Add("width", placement.width)
                                   .Add("height", placement.height)
                                   .Add("imageWidth", placement.imageWidth)
                                   .Add("imageHeight", placement.imageHeight)
                                   .Json()
                             : QByteArray("null");
}

void AddArguments(const Torv::CallRecord& call, Object* line)
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

QByteArray Result(const Torv::CallRecord& call)
{
    const bool isBuffer = call.operation == Torv::OpGetPicImageLayerPtr ||
                          call.operation == Torv::OpSwapPicImageLayerPtr;
    const QByteArray number = QByteArray::number(call.result);
    if (!isBuffer)
        return number;
    return call.result < 0 ? QByteArray("null") : Quoted("buffer " + number);
}

} // namespace

QByteArray CallLine(const Torv::CallRecord& call)
{
    Object line;
    line.Add("call", Quoted(Torv::OperationName(call.operation)));
    AddArguments(call, &line);
    line.Add("result", Result(call));
    if (call.problem)
        line.Add("problem", Quoted(call.problem));
    return line.Json();
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
