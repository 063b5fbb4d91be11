#include "compare/recording.h"

#include "files/failure.h"

#include <QJsonDocument>

#include <algorithm>
#include <cstdio>

namespace AnimText::compare {

QVector<RecordedCall> Recording::All() const
{
    QVector<RecordedCall> all;
    for (const QVector<RecordedCall>& session : sessions)
        all += session;
    return all;
}

int Recording::Pictures() const
{
    const QVector<RecordedCall> all = All();
    return int(std::count_if(all.begin(), all.end(),
                             [](const RecordedCall& call) { return !call.sha1.isEmpty(); }));
}

QVector<RecordedCall>& Recording::Session(int index)
{
    if (sessions.size() <= index)
        sessions.resize(index + 1);
    return sessions[index];
}

bool Recording::Take(const QByteArray& text, int number)
{
    constexpr int mostNodes = 10000; // of a scene; a damaged line may have any number
    const QJsonObject line = QJsonDocument::fromJson(text).object();
    const int node = line.value("node").toInt();
    if (line.contains("call"))
        TakeCall(line, number);
    else if (line.contains("tick") && node >= 0 && node < mostNodes)
        TakeTick(line, number);
    else
        return false;
    return true;
}

int Recording::TakeCall(const QJsonObject& line, int number)
{
    hasCalls = true;
    RecordedCall call;
    call.line = number;
    call.ms = qint64(qBound(-1.0, line.value("ms").toDouble(-1), 1e15));
    call.name = line.value("call").toString();
    call.details = line;
    for (const char* key :
         {"call", "session", "display", "ms", "w", "h", "sha1", "pixels", "problem"})
        call.details.remove(QLatin1String(key));
    call.sha1 = line.value("sha1").toString();
    call.pixels = line.value("pixels").toInt(-1);
    const QJsonValue result = line.value("result");
    int index = 0;
    if (call.name == QLatin1String("CreatePictureSession")) {
        call.details["result"] = result.toDouble() != 0;
        index = sessions.size();
        indices[result.toDouble()] = index;
    } else if (line.contains("session")) {
        index = indices.value(line.value("session").toDouble());
    }
    Session(index).append(call);
    return index;
}

/** A trace's line of a tick belongs to the calls before it. */
void Recording::TakeTick(const QJsonObject& line, int number)
{
    const qint64 ms = line.value("ms").toInt();
    const QString sha1 = line.value("sha1").toString();
    const bool isNew = line.value("swap").toBool();
    const int index = line.value("node").toInt() + 1;
    const QString background = line.value("background").toString();
    QVector<RecordedCall>& own = Session(index);
    if (!hasCalls) {
        RecordedCall picture;
        picture.line = number;
        picture.ms = ms;
        picture.name = "picture";
        picture.background = background;
        if (isNew || own.isEmpty())
            picture.sha1 = sha1;
        if (isNew || own.isEmpty() || own.last().background != background)
            own.append(picture);
        return;
    }
    for (QVector<RecordedCall>& session : sessions) {
        for (int i = session.size() - 1; i >= 0 && session.at(i).ms < 0; --i)
            session[i].ms = ms;
    }
    for (int i = own.size() - 1; i >= 0 && isNew && own.at(i).ms == ms; --i) {
        if (own.at(i).name == QLatin1String("SwapPicImageLayerPtr") &&
            own.at(i).details.value("layer") == line.value("layer")) {
            own[i].sha1 = sha1;
            break;
        }
    }
    TakeBackground(index, ms, background);
}

void Recording::TakeBackground(int index, qint64 ms, const QString& sha1)
{
    QVector<RecordedCall>& session = Session(index);
    if (!session.isEmpty() && session.last().ms == ms)
        session.last().background = sha1;
}

void DropStops(Recording* recording, Stops which)
{
    const auto ends = [](const RecordedCall& call) {
        return call.name == QLatin1String("RemovePictureSession") ||
               call.name == QLatin1String("FreePictureSession");
    };
    int last = -1; // line of a call that is not part of the stop
    for (const RecordedCall& call : recording->All())
        last = ends(call) || which == Stops::Anywhere ? last : std::max(last, call.line);
    for (int i = 1; i < recording->sessions.size(); ++i) {
        QVector<RecordedCall>& session = recording->sessions[i];
        while (!session.isEmpty() && ends(session.last()) && session.last().line > last) {
            session.removeLast();
            recording->stopped.insert(i);
        }
    }
}

Recording ReadRecording(const QString& path)
{
    QFile file(path);
    files::OpenToRead(&file);
    Recording recording;
    recording.name = path;
    for (int number = 1; !file.atEnd(); ++number) {
        const QByteArray line = file.readLine();
        // A device that was switched off may have left half a line.
        if (!recording.Take(line, number) && line.endsWith('\n'))
            throw files::Failure{files::BadInput,
                                 QStringLiteral("%1: line %2: expected a call or a tick, as "
                                                "librecord and animtext trace write them")
                                     .arg(path)
                                     .arg(number)};
    }
    files::FailUnless(!recording.All().isEmpty(), path + ": the recording is empty",
                      files::BadInput);
    return recording;
}

QImage ReadPam(const QString& path)
{
    QFile file(path);
    files::OpenToRead(&file);
    const QByteArray bytes = file.readAll();
    int width = 0, height = 0, depth = 0, pixels = 0;
    std::sscanf(bytes.constData(),
                "P7 WIDTH %5d HEIGHT %5d DEPTH %1d MAXVAL 255 TUPLTYPE %*s ENDHDR%n", &width,
                &height, &depth, &pixels);
    ++pixels; // behind the end of the line
    files::FailUnless(width > 0 && height > 0 && (depth == 3 || depth == 4) &&
                          qint64(width) * height * depth == bytes.size() - pixels,
                      path + ": expected a PAM picture of 24 or 32 bits", files::BadInput);
    return QImage(reinterpret_cast<const uchar*>(bytes.constData()) + pixels, width, height,
                  width * depth, depth == 4 ? QImage::Format_RGBA8888 : QImage::Format_RGB888)
        .convertToFormat(QImage::Format_ARGB32);
}

} // namespace AnimText::compare
