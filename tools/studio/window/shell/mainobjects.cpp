// Adding, copying, moving and removing texts and pages.
#include "studio/window/basics/style.h"
#include "studio/window/shell/mainwindow.h"

#include <QMenu>

namespace AnimText::studio::window::shell {

void MainWindow::Change(const QString& what, const std::function<void(model::Sign*)>& change,
                        const QString& merge)
{
    model::Sign after = document.Current();
    change(&after);
    document.Change(what, after, merge);
}

void MainWindow::AddNewText(bool onNewPage)
{
    Change(onNewPage ? tr("Add page") : tr("Add text"), [=](model::Sign* sign) {
        const int page = onNewPage ? sign->PageCount() : CurrentPage();
        const int height = sign->display.height();
        const QSize size(sign->display.width(), onNewPage ? height : qMax(1, height / 2));
        model::SignText text = model::NewText(size, page);
        // In the upper or lower half, if one is free.
        QRegion covered;
        for (const model::SignText& other : TextsOf(page))
            covered += QRect(other.node.pos, other.node.size);
        const QRect upper(QPoint(0, 0), size);
        const QRect lower = upper.translated(0, height - size.height());
        if (covered.intersects(upper) && !covered.intersects(lower))
            text.node.pos = lower.topLeft();
        model::AddText(sign, text);
        selected = text.id;
    });
    inspector->Text()->BeginTyping();
}

void MainWindow::DuplicateSelected()
{
    const int page = scenes->PageOfRow();
    if (page >= 0)
        Change(tr("Duplicate page"),
               [page](model::Sign* sign) { model::DuplicatePage(sign, page); });
    else if (document.Current().Find(selected))
        Change(tr("Duplicate text"),
               [this](model::Sign* sign) { selected = model::DuplicateText(sign, selected); });
}

void MainWindow::RemoveSelected()
{
    const int page = scenes->PageOfRow();
    const int index = document.Current().IndexOf(selected);
    if (page >= 0)
        Change(tr("Remove page"), [page](model::Sign* sign) { model::RemovePage(sign, page); });
    else if (index >= 0)
        Change(tr("Remove text"), [this, index](model::Sign* sign) {
            model::RemoveText(sign, selected);
            selected = sign->texts.value(qMin(index, sign->texts.size() - 1)).id;
        });
}

void MainWindow::Rename(int id, const QString& name)
{
    const model::SignText* text = document.Current().Find(id);
    if (text && text->Title() != name)
        Change(tr("Rename text"), [&](model::Sign* sign) {
            author::TextSource& source = sign->Find(id)->source;
            source.name = name == source.text.text.simplified() ? QString() : name;
        });
}

void MainWindow::PutText(int id, int page, int place)
{
    Change(tr("Move text"), [=](model::Sign* sign) { model::MoveText(sign, id, page, place); });
}

void MainWindow::PutPage(int page, int to)
{
    Change(tr("Move page"), [=](model::Sign* sign) { model::MovePage(sign, page, to); });
}

/** Shows the context menu of the selected text or page. */
void MainWindow::ShowObjectMenu(const QPoint& global)
{
    auto* menu = new QMenu(this);
    menu->setObjectName("objects");
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const model::Sign& sign = document.Current();
    const int page = scenes->PageOfRow();
    const model::SignText* text = sign.Find(selected);
    const auto add = [this](QMenu* to, const QString& words, bool isPossible, const auto& act) {
        Act(to, {words}, act)->setEnabled(isPossible);
    };
    if (page >= 0) {
        Act(menu, {tr("Add text")}, [this] { AddNewText(false); });
        Act(menu, {tr("Duplicate page")}, [this] { DuplicateSelected(); });
        menu->addSeparator();
        const bool isLast = page + 1 == sign.PageCount();
        add(menu, tr("Move page up"), page > 0, [=] { PutPage(page, page - 1); });
        add(menu, tr("Move page down"), !isLast, [=] { PutPage(page, page + 2); });
        menu->addSeparator();
        Act(menu, {tr("Remove page")}, [this] { RemoveSelected(); });
    } else if (text) {
        const QList<model::SignText> all = TextsOf(text->page);
        const int id = text->id;
        const int own = text->page;
        Act(menu, {tr("Edit text")}, [this] { inspector->Text()->BeginTyping(); });
        Act(menu, {tr("Rename")}, [=] { scenes->Rename(id); });
        Act(menu, {tr("Duplicate text")}, [this] { DuplicateSelected(); });
        menu->addSeparator();
        const bool isTop = id == all.last().id;
        add(menu, tr("Bring to front"), !isTop, [=] { PutText(id, own, INT_MAX); });
        add(menu, tr("Send to back"), id != all.first().id, [=] { PutText(id, own, 0); });
        QMenu* pages = menu->addMenu(tr("Move to page"));
        for (int to = 0; to < sign.PageCount(); ++to) {
            QString title = SceneList::PageTitle(sign, to);
            title.replace(QLatin1Char('&'), QLatin1String("&&"));
            add(pages, title, to != own, [=] { PutText(id, to, INT_MAX); });
        }
        const int last = sign.PageCount();
        add(pages, tr("New page"), all.size() > 1, [=] { PutText(id, last, 0); });
        menu->addSeparator();
        Act(menu, {tr("Remove text")}, [this] { RemoveSelected(); });
    } else {
        Act(menu, {tr("Add text")}, [this] { AddNewText(false); });
        Act(menu, {tr("Add page")}, [this] { AddNewText(true); });
    }
    menu->popup(global);
}

QList<model::SignText> MainWindow::TextsOf(int page) const
{
    QList<model::SignText> texts;
    for (const model::SignText& text : document.Current().texts) {
        if (page < 0 || text.page == page)
            texts.append(text);
    }
    return texts;
}

} // namespace AnimText::studio::window::shell
