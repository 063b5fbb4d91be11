#include "compare/difference.h"

#include "player/player.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace AnimText {

namespace {

QString Text(const QJsonValue& value)
{
    if (value.isUndefined())
        return QStringLiteral("missing");
    const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(list.mid(1, list.size() - 2));
}

/** The first argument, or member of a record, that differs. */
QString Difference(const QString& prefix, const QJsonObject& a, const QJsonObject& b,
                   const QString& nameA, const QString& nameB)
{
    QStringList keys = a.keys() + b.keys();
    keys.removeDuplicates();
    for (const QString& key : keys) {
        if (a.value(key) == b.value(key))
            continue;
        if (a.value(key).isObject() && b.value(key).isObject())
            return Difference(prefix + key + QLatin1Char('.'), a.value(key).toObject(),
                              b.value(key).toObject(), nameA, nameB);
        return QStringLiteral("%1%2 is %3 in %4, %5 in %6")
            .arg(prefix, key, Text(a.value(key)), nameA, Text(b.value(key)), nameB);
    }
    return QString();
}

class Comparison
{
public:
    Comparison(const Recording& a, const Recording& b, qint64 tolerance)
        : a(a)
        , b(b)
        , tolerance(tolerance)
    {
    }

    Parting Session(int index) const
    {
        const QVector<RecordedCall> callsA = a.sessions.value(index);
        const QVector<RecordedCall> callsB = b.sessions.value(index);
        Parting parting;
        parting.session = index;
        for (int i = 0; i < std::max(callsA.size(), callsB.size()); ++i) {
            parting.call = i;
            const bool isOver = (i >= callsA.size() && a.stopped.contains(index)) ||
                                (i >= callsB.size() && b.stopped.contains(index));
            if (isOver)
                return parting;
            if (i >= callsA.size() || i >= callsB.size()) {
                const RecordedCall& next = i < callsA.size() ? callsA.at(i) : callsB.at(i);
                parting.kind = Parting::Kind::End;
                parting.words = QStringLiteral("%1 ends here; %2 continues with %3")
                                    .arg(i < callsA.size() ? b.name : a.name,
                                         i < callsA.size() ? a.name : b.name, next.name);
            } else {
                Call(callsA, callsB, i, &parting);
            }
            if (parting.kind != Parting::Kind::None) {
                const QVector<RecordedCall>& longer = i < callsB.size() ? callsB : callsA;
                parting.ms = std::max<qint64>(0, longer.at(i).ms);
                return parting;
            }
        }
        return parting;
    }

    /** How often a host asks may differ; what the calls return may not. */
    Parting Durations() const
    {
        const auto question = [](RecordedCall call) {
            call.told.remove(QStringLiteral("result"));
            return QJsonDocument(call.told).toJson();
        };
        const QVector<RecordedCall> others = b.sessions.value(0);
        Parting parting;
        for (const RecordedCall& call : a.sessions.value(0)) {
            const auto same =
                std::find_if(others.begin(), others.end(),
                             [&](const RecordedCall& c) { return question(c) == question(call); });
            if (same != others.end() && same->told != call.told) {
                parting.kind = Parting::Kind::Argument;
                parting.words = call.name + QStringLiteral(": ") +
                                Difference(QString(), call.told, same->told, a.name, b.name);
                break;
            }
        }
        return parting;
    }

private:
    void Call(const QVector<RecordedCall>& callsA, const QVector<RecordedCall>& callsB, int i,
              Parting* parting) const
    {
        const RecordedCall& callA = callsA.at(i);
        const RecordedCall& callB = callsB.at(i);
        if (callA.name != callB.name) {
            const bool isOrder = i + 1 < std::min(callsA.size(), callsB.size()) &&
                                 callsA.at(i + 1).name == callB.name &&
                                 callsB.at(i + 1).name == callA.name;
            parting->kind = isOrder ? Parting::Kind::Order : Parting::Kind::Call;
            parting->words =
                QStringLiteral("%1 calls %2, %3 calls %4%5")
                    .arg(a.name, callA.name, b.name, callB.name,
                         isOrder ? QStringLiteral(": same calls in another order") : QString());
        } else if (callA.told != callB.told) {
            parting->kind = Parting::Kind::Argument;
            parting->words = callA.name + QStringLiteral(": ") +
                             Difference(QString(), callA.told, callB.told, a.name, b.name);
        } else if (!callA.sha1.isEmpty() && !callB.sha1.isEmpty() && callA.sha1 != callB.sha1) {
            parting->kind = Parting::Kind::Picture;
            parting->words = QStringLiteral("%1: the pictures differ").arg(callA.name);
        } else if (!callA.background.isEmpty() && !callB.background.isEmpty() &&
                   callA.background != callB.background) {
            parting->kind = Parting::Kind::Background;
            parting->words = QStringLiteral("the background differs at the end of this tick");
        } else if (tolerance >= 0 && callA.ms >= 0 && callB.ms >= 0) {
            const qint64 late = (callA.ms - callsA.first().ms) - (callB.ms - callsB.first().ms);
            if (std::abs(late) <= tolerance)
                return;
            parting->kind = Parting::Kind::Time;
            parting->words =
                QStringLiteral("%1 is %2 ms %3 in %4 than in %5; allowed: %6 ms")
                    .arg(callA.name)
                    .arg(std::abs(late))
                    .arg(late > 0 ? QStringLiteral("later") : QStringLiteral("earlier"), a.name,
                         b.name)
                    .arg(tolerance);
        }
    }

    const Recording& a;
    const Recording& b;
    qint64 tolerance;
};

} // namespace

Parting FirstParting(const Recording& a, const Recording& b, qint64 tolerance)
{
    const Comparison comparison(a, b, tolerance);
    Parting first = comparison.Durations();
    for (int index = 1; index < std::max(a.sessions.size(), b.sessions.size()); ++index) {
        const Parting parting = comparison.Session(index);
        if (parting.kind != Parting::Kind::None &&
            (first.kind == Parting::Kind::None || parting.ms < first.ms))
            first = parting;
    }
    return first;
}

} // namespace AnimText
