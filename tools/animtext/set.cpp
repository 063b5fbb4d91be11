#include "animtext/commands.h"
#include "animtext/shared/cutoff.h"
#include "animtext/shared/savescene.h"
#include "author/setvalue.h"

namespace AnimText {

namespace {

int Set(const CommandLine& line)
{
    const QStringList settings = line.Arguments().mid(2);
    for (const QString& setting : settings) {
        if (setting.indexOf(QLatin1Char('=')) < 1)
            throw Misuse{QStringLiteral("expected KEY=VALUE, not \"%1\"").arg(setting)};
    }
    auto [changed, at] = ChangeText(line, [&](Scene* scene, const Place& place, QString* error) {
        for (const QString& setting : settings) {
            if (!SetValue(scene, place, setting.section(QLatin1Char('='), 0, 0),
                          setting.section(QLatin1Char('='), 1), error))
                return false;
        }
        return true;
    });
    WarnOfCut(changed, changed.At(at));
    return Done;
}

} // namespace

Command SetCommand()
{
    return {"set",
            "changes a text of a scene",
            "SCENE.json PLACE KEY=VALUE...",
            3,
            1000,
            "Changes what needs no new layout: effect, scroll, speed, hold (2s, 1500ms), "
            "plays, pos, color, hollow, or an attribute by its name in the scene file. PLACE is "
            "the text's number, as animtext list shows it, or its path in the file, as animtext "
            "validate does. Another text, font or area is animtext author --replace.",
            {},
            Set};
}

} // namespace AnimText
