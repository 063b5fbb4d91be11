/**
 * @file
 * The pages of the sign and their texts, as a tree.
 */
#ifndef ANIMTEXT_SCENELIST_H
#define ANIMTEXT_SCENELIST_H

#include "studio/model/sign.h"

#include <QTreeWidget>

namespace AnimText {

class SceneList : public QTreeWidget
{
    Q_OBJECT

public:
    explicit SceneList(QWidget* parent = nullptr);

    void Show(const Sign& sign);
    void Select(int id);

signals:
    void Selected(int id);

private:
    void Rebuild(const Sign& sign);

    QVector<QPair<int, int>> shown; // page and id of each text
};

} // namespace AnimText

#endif
