#include "validate/validate.h"

#include "validate/nodecheck.h"

#include <QRect>

namespace AnimText::validate {
namespace {

/** The nodes of one area play in turn; those of other areas of its page play beside them. */
QList<Finding> Overlaps(const scene::Scene& scene, const scene::Place& place)
{
    const QRect own(scene.At(place).pos, scene.At(place).size);
    for (int a = 0; a < place.area; ++a) {
        for (const scene::SceneNode& other : scene.pages[place.page].areas[a].nodes) {
            const QRect both = own & QRect(other.pos, other.size);
            if (!both.isEmpty())
                return {{Mistake::AreasOverlap, scene::Member(place.Path(), "pos"),
                         QStringLiteral("%1 x %2 pixels in common with areas[%3]")
                             .arg(both.width())
                             .arg(both.height())
                             .arg(a),
                         "areas side by side"}};
        }
    }
    return {};
}

} // namespace

QString Finding::Line() const
{
    const Rule& rule = GetRule();
    const QString at = place.isEmpty() ? QString() : " at " + place;
    return QStringLiteral("%1%2: found %3, expected %4. %5")
        .arg(QLatin1String(rule.code), at, found, expected, QLatin1String(rule.why));
}

QList<Finding> ValidateScene(const scene::Scene& scene)
{
    if (scene.Nodes().isEmpty())
        return {{Mistake::SceneEmpty, "$.pages", "no nodes", "one or more"}};
    QList<Finding> findings;
    for (const scene::Place& place : scene.Places()) {
        findings += CheckNode(scene, place);
        findings += Overlaps(scene, place);
    }
    return findings;
}

QList<Finding> ValidateScene(const QString& path)
{
    scene::Scene scene;
    const QList<scene::SceneFault> faults =
        scene::ReadScene(path, &scene, scene::MissingFiles::AreAccepted);
    if (faults.isEmpty())
        return ValidateScene(scene);
    QList<Finding> findings;
    for (const scene::SceneFault& fault : faults)
        findings.append({Mistake::SceneUnreadable, fault.place,
                         fault.found + scene::AndMore(fault.others), fault.expected});
    return findings;
}

} // namespace AnimText::validate
