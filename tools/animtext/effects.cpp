#include "animtext/commands.h"
#include "cli/commandline.h"
#include "scene/catalog.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <iterator>

namespace AnimText::animtext {

namespace {

QJsonArray ToJson(const QList<scene::Motion>& motions)
{
    QJsonArray array;
    for (const scene::Motion& motion : motions)
        array.append(QJsonObject{
            {"number", motion.number},
            {"title", motion.title},
            {"name", motion.name},
            {"family", motion.family},
            {"summary", motion.summary},
            {"synonyms", QJsonArray::fromStringList(QString(motion.synonyms).split(", "))}});
    return array;
}

QByteArray ToTable(const char* heading, const QList<scene::Motion>& motions)
{
    if (motions.isEmpty())
        return QByteArray();
    const auto line = [](const QString& number, const char* title, const char* name,
                         const char* summary) {
        return QString::asprintf("%3s  %-23s%-36s%s\n", qPrintable(number), title, name, summary)
            .toUtf8();
    };
    QByteArray table = line("no", heading, "name", "what people see");
    for (const scene::Motion& motion : motions)
        table += line(QString::number(motion.number), motion.title, motion.name, motion.summary);
    return table;
}

QList<scene::Motion> Found(const QList<scene::Motion>& motions, const QString& search)
{
    QList<scene::Motion> found;
    std::copy_if(motions.begin(), motions.end(), std::back_inserter(found),
                 [&](const scene::Motion& motion) { return scene::Matches(motion, search); });
    return found;
}

void ListEffects(const cli::CommandLine& line)
{
    const QString search = line.Arguments().join(QLatin1Char(' '));
    const QList<scene::Motion> effects = Found(scene::Effects(), search);
    const QList<scene::Motion> scrolls = Found(scene::Scrolls(), search);
    files::FailUnless(!effects.isEmpty() || !scrolls.isEmpty(),
                      QStringLiteral("no motion matches \"%1\"").arg(search));
    if (line.IsSet("json"))
        return cli::Print(
            QJsonDocument({{"effects", ToJson(effects)}, {"scrolls", ToJson(scrolls)}}).toJson());
    const QByteArray gap = effects.isEmpty() || scrolls.isEmpty() ? "" : "\n";
    cli::Print(ToTable("effect", effects) + gap + ToTable("scroll", scrolls));
}

} // namespace

cli::Command EffectsCommand()
{
    return {
        "effects",
        "list entrance effects and scrolls",
        {"[WORD...]",
         0,
         20,
         {"bounce", "fly", "grow", "scroll", "spin", "ticker", "typewriter", "zoom"}},
        "Lists the entrance effects and scrolls with their numbers and names, or only those that "
        "match every WORD, such as bounce or ticker.",
        {Option::Flag("json", "Print JSON, with the family and the synonyms of each motion.")},
        ListEffects,
        {"animtext effects", "animtext effects bounce --json"}};
}

} // namespace AnimText::animtext
