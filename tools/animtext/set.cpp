#include "animtext/commands.h"
#include "animtext/shared/cutoff.h"
#include "animtext/shared/savescene.h"
#include "author/setvalue.h"

namespace AnimText::animtext {

namespace {

void Set(const cli::CommandLine& line)
{
    const QStringList settings = line.Arguments().mid(2);
    for (const QString& setting : settings) {
        if (setting.indexOf(QLatin1Char('=')) < 1)
            throw cli::Misuse{QStringLiteral("expected KEY=VALUE, not \"%1\"").arg(setting)};
    }
    auto [changed, at] = shared::ChangeText(
        line, [&](scene::Scene* scene, const scene::Place& place, QString* error) {
            for (const QString& setting : settings) {
                if (error->isEmpty())
                    *error = author::SetValue(scene, place, setting.section(QLatin1Char('='), 0, 0),
                                              setting.section(QLatin1Char('='), 1));
            }
            return error->isEmpty();
        });
    shared::WarnOfCut(changed, changed.At(at));
}

} // namespace

cli::Command SetCommand()
{
    return {
        "set",
        "change a text in a scene",
        {"SCENE.json PLACE KEY=VALUE...", 3, 1000},
        "Changes settings that need no new layout: effect, scroll, speed, hold (such as 2s or "
        "1500ms), plays, pos, color, hollow, or any number among the attributes in the scene "
        "file. PLACE is the text's number in animtext list, or its path as in animtext "
        "validate. To change the text, font or area, use animtext author --replace.",
        {},
        Set,
        {"animtext set sign.json 1 speed=7 hold=3s", "animtext set sign.json 2 color=red plays=2"}};
}

} // namespace AnimText::animtext
