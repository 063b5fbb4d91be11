/**
 * @file
 * The calls of a plugin to the device, as librecord or `animtext trace --calls` wrote them.
 */
#pragma once

#include <QByteArray>
#include <QHash>
#include <QImage>
#include <QJsonObject>
#include <QSet>
#include <QString>
#include <QVector>

namespace AnimText::compare {

/** One call, or, in a trace without calls, one picture. */
struct RecordedCall
{
    int line = 0;        ///< of the file; 0 when it was recorded just now
    qint64 ms = -1;      ///< when; -1 unknown
    QString name;        ///< of the function; "picture" for a picture alone
    QJsonObject details; ///< arguments and result, without handles, which differ in every run
    QString sha1;        ///< of the picture that was handed over; empty unknown
    QString background;  ///< of the dazzle background after this tick, in its last call
    int pixels = -1;     ///< the number of the file that has its pixels; -1 none
};

/** The calls by session, in the order of their creation; first those that concern no session. */
struct Recording
{
    QString name; ///< for people
    QVector<QVector<RecordedCall>> sessions{1};
    bool hasCalls = false; ///< rather than pictures alone
    QSet<int> stopped;     ///< sessions that the host ended; see DropStops()

    /** The calls of all sessions. */
    QVector<RecordedCall> All() const;
    int Pictures() const;

    /** Adds a line of JSON. @return false if it is not from a recording */
    bool Take(const QByteArray& line, int number);
    /** Adds a call. @return its session */
    int TakeCall(const QJsonObject& line, int number);
    /** Adds the background's SHA-1 at the end of the tick at @p ms; empty without one. */
    void TakeBackground(int session, qint64 ms, const QString& sha1);

private:
    void TakeTick(const QJsonObject& line, int number);
    QVector<RecordedCall>& Session(int index);

    QHash<double, int> indices; ///< of live sessions by their handles
};

/** Which sessions a host has stopped: those that nothing follows, or all that end. */
enum class Stops { AtEnd, Anywhere };

/**
 * Removes the calls with which a host stops sessions from their ends, and remembers these sessions.
 * Hosts stop at any time, and a trace has no such calls.
 */
void DropStops(Recording* recording, Stops which);

/** Reads the file @p path; throws Failure. */
Recording ReadRecording(const QString& path);

/** Reads a picture that librecord kept; throws Failure. */
QImage ReadPam(const QString& path);

} // namespace AnimText::compare
