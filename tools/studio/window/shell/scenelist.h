/**
 * @file
 * The sign as a tree: the display, its pages and their texts.
 */
#pragma once

#include "studio/model/sign.h"

#include <QTreeWidget>

namespace AnimText::studio::window::shell {

/** Texts and pages can be moved by dragging; a double click renames a text. */
class SceneList : public QTreeWidget
{
    Q_OBJECT

public:
    explicit SceneList(QWidget* parent = nullptr);

    /** "Page 2 · Next stop": the number of @p page, from 0, and its first text. */
    static QString PageTitle(const model::Sign& sign, int page);

    void Show(const model::Sign& sign);
    /** Selects the row of the text, or the display for 0. */
    void Select(int id);
    /** The page whose row is selected; negative for none. */
    int PageOfRow() const;
    void Rename(int id);

signals:
    /** A row: @p id is 0 unless it is a text's, and @p page negative if it is the display's. */
    void Selected(int page, int id);
    void Renamed(int id, const QString& name);
    // Rows must not be replaced during a drag: connect these queued.
    /** @param place index among the texts of @p page, which may be a new page */
    void TextDropped(int id, int page, int place);
    /** @param to the page to insert it before */
    void PageDropped(int page, int to);

protected:
    void dropEvent(QDropEvent* event) override;

private:
    void Rebuild();
    QTreeWidgetItem* Find(int id);

    QVector<QPair<int, int>> shown; // page and id of each text
};

} // namespace AnimText::studio::window::shell
