#include "call.h"

#include <QStringList>

namespace Torv {

namespace {

CallLog callLog = 0;
void* callLogContext = 0;

qint64& CounterOf(Misuse misuse)
{
    switch (misuse) {
    case ZeroHandle: return Counters().zeroHandle;
    case StaleHandle: return Counters().staleHandle;
    case WrongDisplay: return Counters().wrongDisplay;
    case BadLayer: return Counters().badLayer;
    case BadArgument: break;
    }
    return Counters().badArgument;
}

const char* NameOf(Misuse misuse)
{
    switch (misuse) {
    case ZeroHandle: return "zeroHandle";
    case StaleHandle: return "staleHandle";
    case WrongDisplay: return "wrongDisplay";
    case BadLayer: return "badLayer";
    case BadArgument: break;
    }
    return "badArgument";
}

/** "name":value; the values that are logged need no escaping. */
QString Member(const char* name, const QString& json)
{
    return QLatin1Char('"') + QLatin1String(name) + QLatin1String("\":") + json;
}

QString Member(const char* name, int value)
{
    return Member(name, QString::number(value));
}

QString Quoted(const char* text)
{
    return QLatin1Char('"') + QLatin1String(text) + QLatin1Char('"');
}

QString Object(const QStringList& members)
{
    return QLatin1Char('{') + members.join(QLatin1String(",")) + QLatin1Char('}');
}

} // namespace

void SetCallLog(CallLog log, void* context)
{
    callLog = log;
    callLogContext = context;
}

Call::Call(Operation operation)
    : operation(operation)
    , faulted(TakeFault(operation))
    , problem(0)
{
    ++Counters().calls[operation];
    if (faulted) {
        ++Counters().injectedFaults;
        problem = "fault";
    }
}

Call& Call::With(const char* name, qint64 value)
{
    if (callLog)
        AddArgument(name, QString::number(value));
    return *this;
}

Call& Call::WithPixelWord(unsigned int word)
{
    if (callLog)
        AddArgument("pixelWord",
                    QString::fromLatin1("\"0x%1\"").arg(word, 8, 16, QLatin1Char('0')));
    return *this;
}

Call& Call::With(const Effect* effect)
{
    if (!callLog)
        return *this;
    QStringList members;
    if (effect) {
        members << Member("effect1", effect->effect1) << Member("duration1", effect->duration1)
                << Member("effect2", effect->effect2) << Member("duration2", effect->duration2)
                << Member("effect3", effect->effect3) << Member("duration3", effect->duration3);
    }
    AddArgument("effect", effect ? Object(members) : QString::fromLatin1("null"));
    return *this;
}

Call& Call::With(const PicImage* image)
{
    if (!callLog)
        return *this;
    QStringList members;
    if (image) {
        members << Member("width", image->width) << Member("height", image->height)
                << Member("bytesPerLine", image->bytesPerLine)
                << Member("bits", QLatin1String(image->bits ? "true" : "false"));
    }
    AddArgument("image", image ? Object(members) : QString::fromLatin1("null"));
    return *this;
}

Call& Call::With(const PicPlacement* placement)
{
    if (!callLog)
        return *this;
    QStringList members;
    if (placement) {
        members << Member("x", placement->x) << Member("y", placement->y)
                << Member("width", placement->width) << Member("height", placement->height)
                << Member("imageWidth", placement->imageWidth)
                << Member("imageHeight", placement->imageHeight);
    }
    AddArgument("placement", placement ? Object(members) : QString::fromLatin1("null"));
    return *this;
}

void Call::Reject(Misuse misuse)
{
    ++CounterOf(misuse);
    problem = NameOf(misuse);
}

void Call::Refuse()
{
    ++Counters().refused;
    problem = "refused";
}

int Call::Answer(int result)
{
    Log(QString::number(result));
    return result;
}

PicSession Call::AnswerHandle(PicSession result)
{
    Log(QString::number(result));
    return result;
}

char* Call::AnswerBuffer(char* buffer, int index)
{
    // Addresses differ from run to run; which buffer it is does not.
    Log(buffer ? QString::fromLatin1("\"buffer %1\"").arg(index) : QString::fromLatin1("null"));
    return buffer;
}

void Call::AddArgument(const char* name, const QString& json)
{
    arguments += QLatin1Char(',') + Member(name, json);
}

void Call::Log(const QString& result) const
{
    if (!callLog)
        return;
    QString line = QLatin1Char('{') + Member("call", Quoted(OperationName(operation))) + arguments +
                   QLatin1Char(',') + Member("result", result);
    if (problem)
        line += QLatin1Char(',') + Member("problem", Quoted(problem));
    callLog(callLogContext, line + QLatin1Char('}'));
}

} // namespace Torv
