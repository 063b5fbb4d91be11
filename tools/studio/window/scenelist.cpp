#include "studio/window/scenelist.h"

#include "studio/window/looks.h"

#include <QHeaderView>

namespace AnimText {
namespace {

constexpr int idRole = Qt::UserRole;

QString TitleOf(const SignText& text)
{
    return text.Title().isEmpty() ? SceneList::tr("(no text yet)") : text.Title();
}

} // namespace

SceneList::SceneList(QWidget* parent)
    : QTreeWidget(parent)
{
    setHeaderHidden(true);
    setFrameShape(QFrame::NoFrame);
    setIndentation(3 * grid);
    setUniformRowHeights(true);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setAccessibleName(tr("Pages and texts"));
    connect(this, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        const int id = item ? item->data(0, idRole).toInt() : 0;
        if (id != 0)
            emit Selected(id);
    });
}

void SceneList::Show(const Sign& sign)
{
    QVector<QPair<int, int>> wanted;
    for (const SignText& text : sign.texts)
        wanted.append({text.page, text.id});
    if (wanted != shown) {
        shown = wanted;
        Rebuild(sign);
        return;
    }
    int index = 0;
    for (int page = 0; page < topLevelItemCount(); ++page) {
        for (int i = 0; i < topLevelItem(page)->childCount(); ++i) {
            QTreeWidgetItem* item = topLevelItem(page)->child(i);
            const QString title = TitleOf(sign.texts.at(index++));
            if (item->text(0) != title)
                item->setText(0, title);
        }
    }
}

void SceneList::Rebuild(const Sign& sign)
{
    const QSignalBlocker blocker(this);
    const int current = currentItem() ? currentItem()->data(0, idRole).toInt() : 0;
    clear();
    QTreeWidgetItem* page = nullptr;
    int number = -1;
    for (const SignText& text : sign.texts) {
        if (text.page != number) {
            number = text.page;
            page = new QTreeWidgetItem(this, {tr("Page %1").arg(number + 1)});
            page->setFlags(Qt::ItemIsEnabled);
            page->setForeground(0, Quiet(palette()));
            page->setExpanded(true);
        }
        auto* item = new QTreeWidgetItem(page, {TitleOf(text)});
        item->setData(0, idRole, text.id);
    }
    expandAll();
    Select(current);
}

void SceneList::Select(int id)
{
    if (currentItem() && currentItem()->data(0, idRole).toInt() == id)
        return;
    const QSignalBlocker blocker(this);
    for (int page = 0; page < topLevelItemCount(); ++page) {
        for (int i = 0; i < topLevelItem(page)->childCount(); ++i) {
            if (topLevelItem(page)->child(i)->data(0, idRole).toInt() == id)
                setCurrentItem(topLevelItem(page)->child(i));
        }
    }
}

} // namespace AnimText
