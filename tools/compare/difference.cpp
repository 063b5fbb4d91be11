#include "compare/difference.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace AnimText::compare {

namespace {

using Calls = QVector<RecordedCall>;

QString Text(const QJsonValue& value)
{
    if (value.isUndefined())
        return "missing";
    const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(list.mid(1, list.size() - 2));
}

struct Comparison
{
    const Recording& a;
    const Recording& b;
    qint64 tolerance;

    Difference Session(int index) const
    {
        const Calls callsA = a.sessions.value(index);
        const Calls callsB = b.sessions.value(index);
        for (int i = 0; i < std::max(callsA.size(), callsB.size()); ++i) {
            const bool isOver = (i >= callsA.size() && a.stopped.contains(index)) ||
                                (i >= callsB.size() && b.stopped.contains(index));
            if (isOver)
                break;
            Difference found = At(i, callsA, callsB);
            if (found.words.isEmpty())
                continue;
            const Calls& longer = i < callsB.size() ? callsB : callsA;
            found.session = index;
            found.call = i;
            found.ms = std::max<qint64>(0, longer.at(i).ms);
            return found;
        }
        return {};
    }

    /** How often a host asks may differ; what the calls return may not. */
    Difference Durations() const
    {
        const auto question = [](RecordedCall call) {
            call.details.remove("result");
            return call.details;
        };
        const Calls others = b.sessions.value(0);
        for (const RecordedCall& call : a.sessions.value(0)) {
            const auto same =
                std::find_if(others.begin(), others.end(),
                             [&](const RecordedCall& c) { return question(c) == question(call); });
            if (same != others.end() && same->details != call.details)
                return {Details(call, *same)};
        }
        return {};
    }

    Difference At(int i, const Calls& callsA, const Calls& callsB) const
    {
        if (i >= callsA.size() || i >= callsB.size()) {
            const bool aGoesOn = i < callsA.size();
            return {QStringLiteral("%1 ends here; %2 continues with %3")
                        .arg(aGoesOn ? b.name : a.name, aGoesOn ? a.name : b.name,
                             (aGoesOn ? callsA : callsB).at(i).name)};
        }
        const RecordedCall& callA = callsA.at(i);
        const RecordedCall& callB = callsB.at(i);
        if (callA.name != callB.name) {
            const bool isOrder =
                callsA.value(i + 1).name == callB.name && callsB.value(i + 1).name == callA.name;
            return {QStringLiteral("%1 calls %2, %3 calls %4%5")
                        .arg(a.name, callA.name, b.name, callB.name,
                             isOrder ? ": same calls in another order" : QString())};
        }
        if (callA.details != callB.details)
            return {Details(callA, callB)};
        if (AreKnownAndDiffer(callA.sha1, callB.sha1))
            return {QStringLiteral("%1: the pictures differ").arg(callA.name), true};
        if (AreKnownAndDiffer(callA.background, callB.background))
            return {"the background differs at the end of this tick"};
        const qint64 late = (callA.ms - callsA.first().ms) - (callB.ms - callsB.first().ms);
        if (tolerance < 0 || callA.ms < 0 || callB.ms < 0 || std::abs(late) <= tolerance)
            return {};
        return {QStringLiteral("%1 is %2 ms %3 in %4 than in %5; allowed: %6 ms")
                    .arg(callA.name)
                    .arg(std::abs(late))
                    .arg(late > 0 ? "later" : "earlier", a.name, b.name)
                    .arg(tolerance)};
    }

    QString Details(const RecordedCall& callA, const RecordedCall& callB) const
    {
        return callA.name + ": " + Details(QString(), callA.details, callB.details);
    }

    /** The first argument, or member of a record, that differs. */
    QString Details(const QString& prefix, const QJsonObject& ofA, const QJsonObject& ofB) const
    {
        for (const QString& key : ofA.keys() + ofB.keys()) {
            const QJsonValue inA = ofA.value(key);
            const QJsonValue inB = ofB.value(key);
            if (inA == inB)
                continue;
            if (inA.isObject() && inB.isObject())
                return Details(prefix + key + QLatin1Char('.'), inA.toObject(), inB.toObject());
            return QStringLiteral("%1%2 is %3 in %4, %5 in %6")
                .arg(prefix, key, Text(inA), a.name, Text(inB), b.name);
        }
        return QString();
    }
};

} // namespace

bool AreKnownAndDiffer(const QString& sha1, const QString& other)
{
    return !sha1.isEmpty() && !other.isEmpty() && sha1 != other;
}

Difference FirstDifference(const Recording& a, const Recording& b, qint64 tolerance)
{
    const Comparison comparison{a, b, tolerance};
    Difference first = comparison.Durations();
    for (int index = 1; index < std::max(a.sessions.size(), b.sessions.size()); ++index) {
        const Difference found = comparison.Session(index);
        if (!found.words.isEmpty() && (first.words.isEmpty() || found.ms < first.ms))
            first = found;
    }
    return first;
}

QImage DifferenceOf(const QImage& a, const QImage& b)
{
    const QSize size = a.size().expandedTo(b.size());
    // Where one is smaller, only the other shows.
    const QImage first = a.copy(QRect(QPoint(0, 0), size)).convertToFormat(QImage::Format_ARGB32);
    const QImage second = b.copy(QRect(QPoint(0, 0), size)).convertToFormat(QImage::Format_ARGB32);
    QImage difference(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const QRgb pixelA = first.pixel(x, y);
            const QRgb pixelB = second.pixel(x, y);
            const int light = qGray(pixelA) * qAlpha(pixelA) / 255;
            const int other = qGray(pixelB) * qAlpha(pixelB) / 255;
            const int dim = light / 3;
            QRgb shown = qRgb(dim, dim, dim);
            if (pixelA != pixelB)
                shown = light >= other ? qRgb(255, dim, dim) : qRgb(dim, 255, dim);
            difference.setPixel(x, y, shown);
        }
    }
    return difference;
}

} // namespace AnimText::compare
