#include "player/callline.h"

#include "scene/json.h"

#include <QCryptographicHash>
#include <QHash>

namespace AnimText::player {

namespace {

/** The arguments of each call, in the order of Torv::Operation. */
const char* const arguments[Torv::OperationCount] = {
    "type image flags effect placement pixelWord",
    "display session reserved",
    "display session width height bytesPerLine pixelWord",
    "display session layer mode",
    "display session layer",
    "display session layer value",
    "display session",
    "session",
    "length areaHeight effectCode speedIndex"};

/** All arguments that any call has. */
QHash<QByteArray, scene::Json> Values(const Torv::CallRecord& call)
{
    const PicImage& image = call.image;
    const Effect& effect = call.effect;
    const PicPlacement& placement = call.placement;
    return {{"display", call.display},
            {"session", call.session},
            {"reserved", call.reserved},
            {"layer", call.layer},
            {"mode", call.mode},
            {"value", call.value},
            {"type", call.type},
            {"flags", call.flags},
            {"width", call.width},
            {"height", call.height},
            {"bytesPerLine", call.bytesPerLine},
            {"pixelWord", "0x" + QByteArray::number(call.pixelWord, 16).rightJustified(8, '0')},
            {"length", call.length},
            {"areaHeight", call.areaHeight},
            {"effectCode", call.effectCode},
            {"speedIndex", call.speedIndex},
            {"image", !call.hasImage ? scene::Json()
                                     : scene::Json::Object({{"width", image.width},
                                                            {"height", image.height},
                                                            {"bytesPerLine", image.bytesPerLine},
                                                            {"bits", image.bits != nullptr}})},
            {"effect", !call.hasEffect ? scene::Json()
                                       : scene::Json::Object({{"effect1", effect.effect1},
                                                              {"duration1", effect.duration1},
                                                              {"effect2", effect.effect2},
                                                              {"duration2", effect.duration2},
                                                              {"effect3", effect.effect3},
                                                              {"duration3", effect.duration3}})},
            {"placement", !call.hasPlacement
                              ? scene::Json()
                              : scene::Json::Object({{"x", placement.x},
                                                     {"y", placement.y},
                                                     {"width", placement.width},
                                                     {"height", placement.height},
                                                     {"imageWidth", placement.imageWidth},
                                                     {"imageHeight", placement.imageHeight}})}};
}

scene::Json Result(const Torv::CallRecord& call)
{
    const bool isBuffer = call.operation == Torv::OpGetPicImageLayerPtr ||
                          call.operation == Torv::OpSwapPicImageLayerPtr;
    if (!isBuffer)
        return call.result;
    return call.result < 0 ? scene::Json()
                           : scene::Json("buffer " + QByteArray::number(call.result));
}

} // namespace

QByteArray CallLine(const Torv::CallRecord& call)
{
    scene::Json line = scene::Json::Object({{"call", Torv::OperationName(call.operation)}});
    const QHash<QByteArray, scene::Json> values = Values(call);
    for (const QByteArray& name : QByteArray(arguments[call.operation]).split(' '))
        line.Add(QString::fromLatin1(name), values.value(name));
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

} // namespace AnimText::player
