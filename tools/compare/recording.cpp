#include "compare/recording.h"

#include <QFile>
#include <QJsonDocument>

#include <algorithm>

namespace AnimText {

namespace {

/** The arguments and the result of a call. */
QJsonObject Told(QJsonObject line)
{
    for (const char* key :
         {"call", "session", "display", "ms", "w", "h", "sha1", "pixels", "problem"})
        line.remove(QLatin1String(key));
    return line;
}

} // namespace

int Recording::Calls() const
{
    int calls = 0;
    for (const QVector<RecordedCall>& session : sessions)
        calls += session.size();
    return calls;
}

int Recording::Pictures() const
{
    int pictures = 0;
    for (const QVector<RecordedCall>& session : sessions) {
        for (const RecordedCall& call : session)
            pictures += call.sha1.isEmpty() ? 0 : 1;
    }
    return pictures;
}

QVector<RecordedCall>& RecordingReader::Session(int index)
{
    if (recording.sessions.size() <= index)
        recording.sessions.resize(index + 1);
    return recording.sessions[index];
}

bool RecordingReader::Take(const QByteArray& text, int number)
{
    const QJsonObject line = QJsonDocument::fromJson(text).object();
    if (line.contains(QStringLiteral("call")))
        TakeCall(line, number, line.value(QStringLiteral("ms")).toInt(-1),
                 line.value(QStringLiteral("sha1")).toString());
    else if (line.contains(QStringLiteral("tick")))
        TakeTick(line, number);
    else
        return false;
    return true;
}

void RecordingReader::TakeCall(const QJsonObject& line, int number, qint64 ms, const QString& sha1)
{
    recording.hasCalls = true;
    RecordedCall call;
    call.line = number;
    call.ms = ms;
    call.name = line.value(QStringLiteral("call")).toString();
    call.told = Told(line);
    call.sha1 = sha1;
    call.pixels = line.value(QStringLiteral("pixels")).toInt(-1);
    const QJsonValue result = line.value(QStringLiteral("result"));
    int index = 0;
    if (call.name == QLatin1String("CreatePictureSession")) {
        call.told[QStringLiteral("result")] = result.toDouble() != 0;
        index = recording.sessions.size();
        indices[result.toDouble()] = index;
    } else if (line.contains(QStringLiteral("session"))) {
        index = indices.value(line.value(QStringLiteral("session")).toDouble());
    }
    Session(index).append(call);
}

/** A trace's line of a tick belongs to the calls before it. */
void RecordingReader::TakeTick(const QJsonObject& line, int number)
{
    const qint64 ms = line.value(QStringLiteral("ms")).toInt();
    const QString sha1 = line.value(QStringLiteral("sha1")).toString();
    const bool isNew = line.value(QStringLiteral("swap")).toBool();
    const int index = line.value(QStringLiteral("node")).toInt() + 1;
    const QString background = line.value(QStringLiteral("background")).toString();
    if (!recording.hasCalls) {
        RecordedCall picture;
        picture.line = number;
        picture.ms = ms;
        picture.name = QStringLiteral("picture");
        picture.background = background;
        const bool isFirst = Session(index).isEmpty();
        if (isNew || isFirst)
            picture.sha1 = sha1;
        if (isNew || isFirst || Session(index).last().background != background)
            Session(index).append(picture);
        return;
    }
    for (QVector<RecordedCall>& session : recording.sessions) {
        for (int i = session.size() - 1; i >= 0 && session.at(i).ms < 0; --i)
            session[i].ms = ms;
    }
    QVector<RecordedCall>& session = Session(index);
    for (int i = session.size() - 1; i >= 0 && isNew && session.at(i).ms == ms; --i) {
        if (session.at(i).name == QLatin1String("SwapPicImageLayerPtr") &&
            session.at(i).told.value(QStringLiteral("layer")) ==
                line.value(QStringLiteral("layer"))) {
            session[i].sha1 = sha1;
            break;
        }
    }
    TakeBackground(index, ms, background);
}

void RecordingReader::TakeBackground(int index, qint64 ms, const QString& sha1)
{
    QVector<RecordedCall>& session = Session(index);
    if (!session.isEmpty() && session.last().ms == ms)
        session.last().background = sha1;
}

void DropStop(Recording* recording)
{
    const auto ends = [](const RecordedCall& call) {
        return call.name == QLatin1String("RemovePictureSession") ||
               call.name == QLatin1String("FreePictureSession");
    };
    int last = 0; // line of a call that is not part of the stop
    for (const QVector<RecordedCall>& session : recording->sessions) {
        for (const RecordedCall& call : session)
            last = ends(call) ? last : std::max(last, call.line);
    }
    for (int i = 1; i < recording->sessions.size(); ++i) {
        QVector<RecordedCall>& session = recording->sessions[i];
        while (!session.isEmpty() && ends(session.last()) && session.last().line > last) {
            session.removeLast();
            recording->stopped.insert(i);
        }
    }
}

bool ReadRecording(const QString& path, Recording* recording, QString* error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("%1: cannot be read: %2").arg(path, file.errorString());
        return false;
    }
    RecordingReader reader;
    int number = 0;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine();
        ++number;
        // A device that was switched off may have left half a line.
        if (!reader.Take(line, number) && line.endsWith('\n')) {
            *error = QStringLiteral("%1: line %2: expected a call or a tick, as librecord and "
                                    "animtext trace write them")
                         .arg(path)
                         .arg(number);
            return false;
        }
    }
    *recording = reader.Read();
    recording->name = path;
    if (recording->Calls() > 0)
        return true;
    *error = QStringLiteral("%1: the recording is empty").arg(path);
    return false;
}

} // namespace AnimText
