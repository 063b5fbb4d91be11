// Adding, copying, moving and removing texts and pages.
#include "studio/window/basics/style.h"
#include "studio/window/shell/mainwindow.h"

#include <QMenu>

#include <algorithm>

namespace AnimText {

void MainWindow::AddNewText(bool onNewPage)
{
    Sign after = document.Current();
    const int page = onNewPage ? after.PageCount() : CurrentPage();
    const QSize size(after.display.width(),
                     onNewPage ? after.display.height() : qMax(1, after.display.height() / 2));
    SignText text = NewText(size, page);
    // In the upper or lower half, if one is free.
    const auto covers = [&](int y) {
        const QRect area(QPoint(0, y), size);
        return std::any_of(after.texts.begin(), after.texts.end(), [&](const SignText& other) {
            return other.page == page && area.intersects(QRect(other.node.pos, other.node.size));
        });
    };
    const int lower = after.display.height() - size.height();
    if (covers(0) && !covers(lower))
        text.node.pos.setY(lower);
    AddText(&after, text);
    selected = text.id;
    document.Change(onNewPage ? tr("Add page") : tr("Add text"), after);
    inspector->Text()->BeginTyping();
}

void MainWindow::DuplicateSelected()
{
    Sign after = document.Current();
    const int page = scenes->PageOfRow();
    if (page >= 0) {
        DuplicatePage(&after, page);
        document.Change(tr("Duplicate page"), after);
        return;
    }
    const int copy = DuplicateText(&after, selected);
    if (copy == 0)
        return;
    selected = copy;
    document.Change(tr("Duplicate text"), after);
}

void MainWindow::RemoveSelected()
{
    Sign after = document.Current();
    const int page = scenes->PageOfRow();
    if (page >= 0) {
        RemovePage(&after, page);
        document.Change(tr("Remove page"), after);
        return;
    }
    const int index = after.IndexOf(selected);
    if (index < 0)
        return;
    RemoveText(&after, selected);
    selected = after.texts.isEmpty() ? 0 : after.texts.at(qMin(index, after.texts.size() - 1)).id;
    document.Change(tr("Remove text"), after);
}

void MainWindow::Rename(int id, const QString& name)
{
    Sign after = document.Current();
    SignText* text = after.Find(id);
    if (!text || text->Title() == name)
        return;
    text->source.name = name == text->source.text.text.simplified() ? QString() : name;
    document.Change(tr("Rename text"), after);
}

void MainWindow::PutText(int id, int page, int place)
{
    Sign after = document.Current();
    MoveText(&after, id, page, place);
    document.Change(tr("Move text"), after);
}

void MainWindow::PutPage(int page, int to)
{
    Sign after = document.Current();
    MovePage(&after, page, to);
    document.Change(tr("Move page"), after);
}

/** Shows the context menu of the selected text or page. */
void MainWindow::ShowObjectMenu(const QPoint& global)
{
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("objects"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const Sign& sign = document.Current();
    const int page = scenes->PageOfRow();
    const SignText* text = sign.Find(selected);
    const auto act = [menu, this](const QString& words, const std::function<void()>& does) {
        QAction* action = menu->addAction(words);
        connect(action, &QAction::triggered, this, does);
        return action;
    };
    if (page >= 0) {
        act(tr("Add text"), [this] { AddNewText(false); });
        act(tr("Duplicate page"), [this] { DuplicateSelected(); });
        menu->addSeparator();
        act(tr("Move page up"), [=] { PutPage(page, page - 1); })->setEnabled(page > 0);
        act(tr("Move page down"), [=] {
            PutPage(page, page + 2);
        })->setEnabled(page + 1 < sign.PageCount());
        menu->addSeparator();
        act(tr("Remove page"), [this] { RemoveSelected(); });
    } else if (text) {
        const int first = sign.IndexOf(PagedIds(text->page).first());
        const int place = sign.IndexOf(text->id) - first;
        const int last = PagedIds(text->page).size() - 1;
        const int id = text->id;
        const int own = text->page;
        act(tr("Edit text"), [this] { inspector->Text()->BeginTyping(); });
        act(tr("Rename"), [=] { scenes->Rename(id); });
        act(tr("Duplicate text"), [this] { DuplicateSelected(); });
        menu->addSeparator();
        act(tr("Bring to front"), [=] { PutText(id, own, last + 1); })->setEnabled(place < last);
        act(tr("Send to back"), [=] { PutText(id, own, 0); })->setEnabled(place > 0);
        QMenu* pages = menu->addMenu(tr("Move to page"));
        for (int to = 0; to <= sign.PageCount(); ++to) {
            const bool isNew = to == sign.PageCount();
            QAction* action = pages->addAction(isNew ? tr("New page")
                                                     : SceneList::PageTitle(sign, to).replace(
                                                           QLatin1Char('&'), QLatin1String("&&")));
            action->setEnabled(to != own && !(isNew && last == 0));
            connect(action, &QAction::triggered, this, [=] { PutText(id, to, INT_MAX); });
        }
        menu->addSeparator();
        act(tr("Remove text"), [this] { RemoveSelected(); });
    } else {
        act(tr("Add text"), [this] { AddNewText(false); });
        act(tr("Add page"), [this] { AddNewText(true); });
    }
    menu->popup(global);
}

QVector<int> MainWindow::PagedIds(int page) const
{
    QVector<int> ids;
    for (const SignText& text : document.Current().texts) {
        if (page < 0 || text.page == page)
            ids.append(text.id);
    }
    return ids;
}

} // namespace AnimText
