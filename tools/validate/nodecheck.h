/**
 * @file
 * The checks on one node of a scene.
 */
#ifndef ANIMTEXT_NODECHECK_H
#define ANIMTEXT_NODECHECK_H

#include "scene/motion.h"
#include "scene/scene.h"
#include "validate/validate.h"

#include <QVector>

namespace AnimText {

/** Checks one node; the findings are in the order of the scene file. */
class NodeCheck
{
public:
    NodeCheck(const Scene& scene, const Place& place);

    QList<Finding> Run();

private:
    void CheckArea();
    void CheckRange(Mistake mistake, const QString& key);
    void CheckMode();
    void CheckFlags();
    void CheckIgnored();
    void CheckLists();
    void CheckRows(const QString& list, const QString& field);
    void CheckMeasures();
    void CheckFiles();
    void CheckData(const QString& key);
    void CheckOutlines(const QVector<bool>& isEmpty);
    void CheckCut();

    bool Has(const QString& flag) const { return Number(flag) == 1; }
    int Number(const QString& key) const { return node.attributes.value(key).toInt(); }
    QVector<int> Column(const char* list, const char* field) const;
    bool ScrollsSideways() const { return motion.IsSideways(); }

    void Add(Mistake mistake, const QString& where, const QString& found, const QString& expected);
    void AddRow(Mistake mistake, const QString& list, int row, const QString& field,
                const QString& found, const QString& expected);
    void AddAttribute(Mistake mistake, const QString& key, const QString& expected);

    const Scene& scene;
    const SceneNode& node;
    const QString path; // of the node in the scene file
    const QString text;
    const NodeMotion motion;
    QVector<int> widths;
    QVector<int> heights;
    QVector<int> descents;
    QVector<QRectF> ink; // of the outlines
    QList<Finding> findings;
};

} // namespace AnimText

#endif
