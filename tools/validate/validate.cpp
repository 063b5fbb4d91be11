#include "validate/validate.h"

#include "validate/nodecheck.h"

namespace AnimText {

QList<Finding> ValidateScene(const QString& path)
{
    Scene scene;
    QString error;
    if (!ReadScene(path, &scene, &error, MissingFiles::AreAccepted))
        return {{RuleFor("scene-unreadable"), QString(), error, QStringLiteral("a scene file")}};
    return ValidateScene(scene);
}

QList<Finding> ValidateScene(const Scene& scene)
{
    if (scene.Nodes().isEmpty())
        return {{RuleFor("scene-empty"), QStringLiteral("$.pages"), QStringLiteral("no nodes"),
                 QStringLiteral("one or more")}};
    QList<Finding> findings;
    for (int p = 0; p < scene.pages.size(); ++p) {
        for (int a = 0; a < scene.pages[p].areas.size(); ++a) {
            const QList<SceneNode>& nodes = scene.pages[p].areas[a].nodes;
            for (int n = 0; n < nodes.size(); ++n) {
                const QString place =
                    QStringLiteral("$.pages[%1].areas[%2].nodes[%3]").arg(p).arg(a).arg(n);
                findings += NodeCheck(scene, nodes[n], place).Run();
            }
        }
    }
    return findings;
}

} // namespace AnimText
