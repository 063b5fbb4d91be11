#include "animtext/commands.h"
#include "cli/commandline.h"
#include "scene/catalogue.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace AnimText {

namespace {

QJsonArray ToJson(const QList<Motion>& motions)
{
    QJsonArray array;
    for (const Motion& motion : motions) {
        array.append(QJsonObject{{QStringLiteral("number"), motion.number},
                                 {QStringLiteral("name"), QLatin1String(motion.name)},
                                 {QStringLiteral("family"), QLatin1String(motion.family)},
                                 {QStringLiteral("summary"), QLatin1String(motion.summary)}});
    }
    return array;
}

QByteArray ToTable(const char* heading, const QList<Motion>& motions)
{
    QByteArray table = " no  " + QByteArray(heading).leftJustified(36) + "motion\n";
    for (const Motion& motion : motions)
        table += QByteArray::number(motion.number).rightJustified(3) + "  " +
                 QByteArray(motion.name).leftJustified(36) + motion.summary + '\n';
    return table;
}

int ListEffects(const CommandLine& line)
{
    if (line.IsSet("json"))
        Print(QJsonDocument(QJsonObject{{QStringLiteral("effects"), ToJson(Effects())},
                                        {QStringLiteral("scrolls"), ToJson(Scrolls())}})
                  .toJson());
    else
        Print(ToTable("effect", Effects()) + '\n' + ToTable("scroll", Scrolls()));
    return Done;
}

} // namespace

Command EffectsCommand()
{
    return {"effects",
            "lists the entrance effects and scrolls",
            "",
            0,
            0,
            "Lists the entrance effects and the scrolls, each with its number and its name.",
            {Option::Flag("json", "Prints JSON, with the family of each.")},
            ListEffects};
}

} // namespace AnimText
