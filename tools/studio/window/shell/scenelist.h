/**
 * @file
 * The display, the pages of the sign and their texts, as a tree.
 */
#ifndef ANIMTEXT_SCENELIST_H
#define ANIMTEXT_SCENELIST_H

#include "studio/model/sign.h"

#include <QTreeWidget>

namespace AnimText {

/** Texts and pages are dragged to other places; a text is renamed with a double click. */
class SceneList : public QTreeWidget
{
    Q_OBJECT

public:
    explicit SceneList(QWidget* parent = nullptr);

    /** "Page 2 · Next stop": the number of @p page, from 0, and its first text. */
    static QString PageTitle(const Sign& sign, int page);

    void Show(const Sign& sign);
    /** The row of the text, or of the display for 0. */
    void Select(int id);
    /** The page whose own row is current; negative for none. */
    int PageOfRow() const;
    void Rename(int id);

signals:
    void Selected(int id);
    void PageSelected(int page);
    void Renamed(int id, const QString& name);
    /** @param place among the texts of that page, which may be a new one */
    void TextDropped(int id, int page, int place);
    /** @param to the page that it comes before */
    void PageDropped(int page, int to);
    /** @param global where the menu goes */
    void MenuWanted(const QPoint& global);

protected:
    void dropEvent(QDropEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void Rebuild(const Sign& sign);
    QTreeWidgetItem* Find(int id) const;

    QVector<QPair<int, int>> shown; // page and id of each text
};

} // namespace AnimText

#endif
