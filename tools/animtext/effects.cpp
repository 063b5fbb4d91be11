#include "animtext/commands.h"
#include "cli/commandline.h"
#include "scene/catalog.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <iterator>

namespace AnimText {

namespace {

QJsonArray ToJson(const QList<Motion>& motions)
{
    QJsonArray array;
    for (const Motion& motion : motions) {
        const QStringList synonyms =
            QString::fromLatin1(motion.synonyms).split(QLatin1String(", "));
        array.append(
            QJsonObject{{QStringLiteral("number"), motion.number},
                        {QStringLiteral("title"), QLatin1String(motion.title)},
                        {QStringLiteral("name"), QLatin1String(motion.name)},
                        {QStringLiteral("family"), QLatin1String(motion.family)},
                        {QStringLiteral("summary"), QLatin1String(motion.summary)},
                        {QStringLiteral("synonyms"), QJsonArray::fromStringList(synonyms)}});
    }
    return array;
}

QByteArray ToTable(const char* heading, const QList<Motion>& motions)
{
    if (motions.isEmpty())
        return QByteArray();
    const auto line = [](const QByteArray& number, const char* title, const char* name,
                         const char* summary) {
        return number.rightJustified(3) + "  " + QByteArray(title).leftJustified(23) +
               QByteArray(name).leftJustified(36) + summary + '\n';
    };
    QByteArray table = line("no", heading, "name", "what people see");
    for (const Motion& motion : motions)
        table += line(QByteArray::number(motion.number), motion.title, motion.name, motion.summary);
    return table;
}

QList<Motion> Found(const QList<Motion>& motions, const QString& search)
{
    QList<Motion> found;
    std::copy_if(motions.begin(), motions.end(), std::back_inserter(found),
                 [&](const Motion& motion) { return Matches(motion, search); });
    return found;
}

int ListEffects(const CommandLine& line)
{
    const QString search = line.Arguments().join(QLatin1Char(' '));
    const QList<Motion> effects = Found(Effects(), search);
    const QList<Motion> scrolls = Found(Scrolls(), search);
    if (effects.isEmpty() && scrolls.isEmpty())
        throw Failure{FailedRun, QStringLiteral("no motion matches \"%1\"").arg(search)};
    if (line.IsSet("json")) {
        Print(QJsonDocument(QJsonObject{{QStringLiteral("effects"), ToJson(effects)},
                                        {QStringLiteral("scrolls"), ToJson(scrolls)}})
                  .toJson());
        return Done;
    }
    const QByteArray gap = effects.isEmpty() || scrolls.isEmpty() ? "" : "\n";
    Print(ToTable("effect", effects) + gap + ToTable("scroll", scrolls));
    return Done;
}

} // namespace

Command EffectsCommand()
{
    return {
        "effects",
        "list entrance effects and scrolls",
        "[WORD...]",
        0,
        20,
        "Lists the entrance effects and scrolls with their numbers and names, or only those that "
        "match every WORD, such as bounce or ticker.",
        {Option::Flag("json", "Print JSON, with the family and the synonyms of each motion.")},
        ListEffects,
        {"animtext effects", "animtext effects bounce --json"},
        {QStringLiteral("bounce"), QStringLiteral("fly"), QStringLiteral("grow"),
         QStringLiteral("scroll"), QStringLiteral("spin"), QStringLiteral("ticker"),
         QStringLiteral("typewriter"), QStringLiteral("zoom")}};
}

} // namespace AnimText
