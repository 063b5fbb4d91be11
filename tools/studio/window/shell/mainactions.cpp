// The window's menus, tool bar and keyboard shortcuts.
#include "film/lamps.h"
#include "studio/window/basics/style.h"
#include "studio/window/display/ledsdialog.h"
#include "studio/window/shell/exportdialog.h"
#include "studio/window/shell/mainwindow.h"

#include <QActionGroup>
#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QScrollBar>
#include <QSettings>
#include <QTreeWidget>

#include <cmath>

namespace AnimText::studio::window::shell {
namespace {

constexpr int mostRecent = 8;
constexpr int largestZoom = 16;

} // namespace

QAction* MainWindow::Act(QMenu* menu, const Entry& entry, const std::function<void()>& act)
{
    QAction* action = menu->addAction(entry.words);
    action->setShortcut(entry.key);
    if (entry.icon)
        action->setIcon(basics::Icon(QLatin1String(entry.icon)));
    QString name = entry.words;
    name.remove(QLatin1Char('&')).remove("…");
    const QString key = entry.key.toString(QKeySequence::NativeText);
    action->setToolTip(key.isEmpty() ? name : QStringLiteral("%1 (%2)").arg(name, key));
    connect(action, &QAction::triggered, this, act);
    return action;
}

void MainWindow::MakeFileMenu()
{
    QMenu* file = menuBar()->addMenu(tr("&File"));
    tools->addAction(Act(file, {tr("&New…"), QKeySequence::New, "document-new"},
                         [this] { Leave([this] { ChooseNew(); }); }));
    tools->addAction(Act(file, {tr("&Open…"), QKeySequence::Open, "document-open"}, [this] {
        const QString path = QFileDialog::getOpenFileName(
            this, tr("Open scene"), QFileInfo(document.Path()).path(), tr("Scenes (*.json)"));
        if (!path.isEmpty())
            Leave([this, path] { Open(path); });
    }));
    QMenu* recent = file->addMenu(tr("Open &recent"));
    recent->setToolTipsVisible(true);
    connect(recent, &QMenu::aboutToShow, this, [=] {
        recent->clear();
        for (const QString& path : QSettings().value("recent").toStringList()) {
            const auto open = [=] { Leave([=] { Open(path); }); };
            QAction* action = Act(recent, {QFileInfo(path).fileName()}, open);
            action->setToolTip(path);
            action->setEnabled(QFileInfo::exists(path));
        }
        if (recent->isEmpty())
            recent->addAction(tr("No recent scenes"))->setEnabled(false);
    });
    file->addSeparator();
    saveAction = Act(file, {tr("&Save"), QKeySequence::Save, "document-save"}, [this] { Save(); });
    tools->addAction(saveAction);
    tools->addSeparator();
    Act(file, {tr("Save &as…"), QKeySequence::SaveAs}, [this] { Save(true); });
    file->addSeparator();
    exportAction =
        Act(file, {tr("&Export…"), {"Ctrl+E"}, "document-export"}, [this] { ShowExport(); });
    file->addSeparator();
    Act(file, {tr("&Quit"), QKeySequence::Quit}, [this] { close(); });
}

void MainWindow::MakeEditMenu()
{
    QMenu* edit = menuBar()->addMenu(tr("&Edit"));
    QAction* undo = document.Undo()->createUndoAction(this, tr("&Undo"));
    undo->setShortcut(QKeySequence::Undo);
    undo->setIcon(basics::Icon("edit-undo"));
    QAction* redo = document.Undo()->createRedoAction(this, tr("&Redo"));
    redo->setShortcut(QKeySequence::Redo);
    redo->setIcon(basics::Icon("edit-redo"));
    edit->addActions({undo, redo});
    edit->addSeparator();
    Act(edit, {tr("Cu&t"), QKeySequence::Cut, "edit-cut"}, [this] { EditWords("cut"); });
    Act(edit, {tr("&Copy"), QKeySequence::Copy, "edit-copy"}, [this] { EditWords("copy"); });
    Act(edit, {tr("&Paste"), QKeySequence::Paste, "edit-paste"}, [this] { EditWords("paste"); });
    Act(edit, {tr("Paste &with styles"), {"Ctrl+Shift+V"}}, [this] {
        if (inspector->Text()->isEnabled())
            inspector->Text()->Editor()->PasteWithStyles();
    });
    edit->addSeparator();
    QAction* add =
        Act(edit, {tr("Add te&xt"), {"Ctrl+T"}, "list-add"}, [this] { AddNewText(false); });
    QAction* addPage =
        Act(edit, {tr("Add pa&ge"), {"Ctrl+Shift+T"}, "list-add"}, [this] { AddNewText(true); });
    Act(edit, {tr("&Duplicate"), {"Ctrl+D"}}, [this] { DuplicateSelected(); });
    QAction* remove =
        Act(edit, {tr("Re&move"), QKeySequence::Delete}, [this] { RemoveSelected(); });
    // In a text field, Delete is for letters.
    remove->setShortcutContext(Qt::WidgetShortcut);
    for (QWidget* widget : QList<QWidget*>{view, scenes, timeline})
        widget->addAction(remove);
    edit->addSeparator();
    Act(edit, {tr("&Edit text"), Qt::Key_F2}, [this] { inspector->Text()->BeginTyping(); });
    Act(edit, {tr("&Search motions"), {"Ctrl+M"}}, [this] {
        inspector->ensureWidgetVisible(inspector->Motions());
        inspector->Motions()->Search()->setFocus();
    });
    tools->addActions({undo, redo});
    for (QAction* action : tools->actions())
        action->setPriority(QAction::LowPriority); // without text in the tool bar
    tools->addSeparator();
    tools->addActions({add, exportAction});
    for (const auto& shown : {qMakePair(add, tr("Text")), qMakePair(addPage, tr("Page"))}) {
        auto* button = new QToolButton(this);
        button->setDefaultAction(shown.first);
        button->setText(shown.second);
        button->setAccessibleName(shown.first->iconText());
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setAutoRaise(true);
        sceneTools->addWidget(button);
    }
    sceneTools->addStretch(1);
}

/** Calls "cut", "copy" or "paste" of the field with the focus, otherwise of the text field. */
void MainWindow::EditWords(const char* slot)
{
    QWidget* focused = focusWidget();
    QWidget* field = qobject_cast<QLineEdit*>(focused);
    if (!field && focused)
        field = focused->findChild<QLineEdit*>(); // inside a number field
    if (!field)
        field = inspector->Text()->Editor();
    if (field->isEnabled())
        QMetaObject::invokeMethod(field, slot);
}

void MainWindow::MakeViewMenu()
{
    QMenu* look = menuBar()->addMenu(tr("&View"));
    Act(look, {tr("&Fit to window"), {"Ctrl+0"}}, [this] { SetZoom(0); });
    const auto middle = [this] { return QPointF(view->visibleRegion().boundingRect().center()); };
    Act(look, {tr("Zoom &in"), QKeySequence::ZoomIn}, [=] { ZoomBy(1, middle()); });
    Act(look, {tr("Zoom &out"), QKeySequence::ZoomOut}, [=] { ZoomBy(-1, middle()); });
    look->addSeparator();
    const auto toggle = [&](const Entry& entry, const auto& act) {
        QAction* action = Act(look, entry, [] {});
        action->setCheckable(true);
        connect(action, &QAction::toggled, view, act);
        return action;
    };
    leds = toggle({tr("&LEDs"), {"Ctrl+L"}, "lamps"}, [this] { SetZoom(zoom); });
    leds->setObjectName("leds");
    leds->setToolTip(tr("Show the pixels as round LEDs (Ctrl+L)"));
    QMenu* distances = look->addMenu(tr("LED &pitch"));
    auto* pitches = new QActionGroup(this);
    pitch = qBound(1.0, QSettings().value("pitch", pitch).toDouble(), 4.0);
    for (double diameters : {1.0, 1.25, 1.5, 2.0, 3.0}) {
        const QString words = tr("%1 diameters").arg(locale().toString(diameters));
        QAction* action = Act(distances, {words}, [=] {
            pitch = diameters;
            leds->setChecked(true);
            SetZoom(zoom);
        });
        action->setCheckable(true);
        action->setChecked(diameters == pitch);
        pitches->addAction(action);
    }
    toggle({tr("&Checkered background")}, &live::PictureView::SetCheckered);
    toggle({tr("Show all &areas"), {"Ctrl+F"}}, &display::DisplayView::SetShowsFrames);
    toggle({tr("Show &rulers"), {"Ctrl+R"}}, &display::DisplayView::SetShowsRulers);
    look->addSeparator();
    look->addActions(createPopupMenu()->actions());

    auto* space = new QWidget(this);
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    tools->addWidget(space);
    zoomBox = new QComboBox(this);
    zoomBox->setAccessibleName(tr("Zoom"));
    zoomBox->setToolTip(tr("Zoom (Ctrl+wheel, Ctrl+0, Ctrl++, Ctrl+-)"));
    zoomBox->addItem(tr("Fit"));
    for (int times = 1; times <= largestZoom; ++times)
        zoomBox->addItem(tr("%1 ×").arg(times));
    connect(zoomBox, qOverload<int>(&QComboBox::activated), this, &MainWindow::SetZoom);
    tools->addWidget(zoomBox);
    tools->addAction(leds);
    auto* button = static_cast<QToolButton*>(tools->widgetForAction(leds));
    button->setPopupMode(QToolButton::MenuButtonPopup);
    button->setMenu(distances);
}

void MainWindow::MakePlayMenu()
{
    QMenu* play = menuBar()->addMenu(tr("&Play"));
    // Not shortcuts: the window handles the keys, so that text fields get them first.
    const auto act = [&](const QString& words, const QKeySequence& key, const QString& keyName,
                         const std::function<void()>& does) {
        playKeys[key] = Act(play, {words + QLatin1Char('\t') + keyName}, does);
    };
    const auto by = [this](int ticks) {
        return [this, ticks] { playback.Seek(playback.Tick() + ticks); };
    };
    act(tr("&Play or stop"), Qt::Key_Space, tr("Space"), [this] { playback.Toggle(); });
    playKeys[Qt::Key_Space]->setShortcut({"Ctrl+Space"}); // from any field
    act(tr("Play &backward, then faster"), Qt::Key_J, "J", [this] { playback.Shuttle(-1); });
    act(tr("&Stop"), Qt::Key_K, "K", [this] { playback.SetPace(0); });
    act(tr("Play &forward, then faster"), Qt::Key_L, "L", [this] { playback.Shuttle(1); });
    play->addSeparator();
    act(tr("One tick back"), Qt::Key_Left, "←", by(-1));
    act(tr("One tick forward"), Qt::Key_Right, "→", by(1));
    act(tr("Ten ticks back"), {"Shift+Left"}, tr("Shift+←"), by(-10));
    act(tr("Ten ticks forward"), {"Shift+Right"}, tr("Shift+→"), by(10));
    act(tr("Previous page mark"), Qt::Key_BracketLeft, "[",
        [this] { playback.Seek(timeline->PreviousMark(playback.Tick())); });
    act(tr("Next page mark"), Qt::Key_BracketRight, "]",
        [this] { playback.Seek(timeline->NextMark(playback.Tick())); });
    act(tr("Go to start"), Qt::Key_Home, tr("Home"), [this] { playback.Seek(0); });
    act(tr("Go to end"), Qt::Key_End, tr("End"), [this] { playback.Seek(playback.Length() - 1); });
    act(tr("Turn page &loop on or off"), Qt::Key_R, "R", [this] { ToggleLoop(); });
    play->addSeparator();
    Act(play, {tr("Play on L&EDs…")}, [this] {
        auto* dialog = new display::LedsDialog(document.Current().display, document.Path(), this);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        connect(&rehearsal, &worker::Rehearsal::Shown, dialog, &display::LedsDialog::Show);
        dialog->Show(view->Picture());
        dialog->show();
    });
}

void MainWindow::MakeHelpMenu()
{
    QMenu* help = menuBar()->addMenu(tr("&Help"));
    Act(help, {tr("&Keyboard shortcuts"), Qt::Key_F1}, [this] { ShowKeys(); });
    Act(help, {tr("&About")}, [this] {
        QMessageBox::about(this, tr("Animated Text Studio"),
                           tr("<b>Animated Text Studio %1</b><p>The plugin itself paints "
                              "the preview, so it shows the same pixels as the sign.")
                               .arg(QApplication::applicationVersion()));
    });
}

QDialog* MainWindow::MakeDialog(const QString& name, const QString& title)
{
    auto* dialog = new QDialog(this);
    dialog->setObjectName(name);
    dialog->setWindowTitle(title);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    return dialog;
}

/** Lists all keys: those of the menus, the display and the fields. */
void MainWindow::ShowKeys()
{
    auto* dialog = MakeDialog("keys", tr("Keyboard shortcuts"));
    auto* list = new QTreeWidget(dialog);
    list->setHeaderLabels({tr("Keys"), tr("Action")});
    list->setRootIsDecorated(false);
    list->setAccessibleName(tr("Keyboard shortcuts"));
    for (const QAction* menu : menuBar()->actions()) {
        auto* group = new QTreeWidgetItem(list, {menu->text().remove(QLatin1Char('&'))});
        for (const QAction* action : menu->menu()->actions()) {
            const QStringList parts =
                action->text().remove(QLatin1Char('&')).split(QLatin1Char('\t'));
            const QString key =
                parts.value(1, action->shortcut().toString(QKeySequence::NativeText));
            if (!key.isEmpty())
                new QTreeWidgetItem(group, {key, parts.first()});
        }
    }
    auto* display = new QTreeWidgetItem(list, {tr("Display and fields")});
    const QList<QStringList> others{
        {tr("Ctrl+Space"), tr("Play or stop, from any field")},
        {tr("Alt+arrows"), tr("Move the area by 1 px. Shift: resize it. Ctrl: by 10 px")},
        {tr("Ctrl+wheel"), tr("Zoom the display or the timeline")},
        {tr("Space+drag, middle button"), tr("Scroll the display")},
        {tr("Ctrl while dragging"), tr("Move or resize the area without snapping")},
        {tr("Shift+drag"), tr("Timeline: loop a range. Number: change it in steps of 10")},
        {tr("Esc"), tr("Leave a field. Display: clear the selection")},
        {tr("Return"), tr("Number: return to the display")},
    };
    for (const QStringList& other : others)
        new QTreeWidgetItem(display, other);
    list->expandAll();
    list->resizeColumnToContents(0);
    dialog->setLayout(basics::Arrange(Qt::Vertical, 0, {list}));
    dialog->resize(QSize(560, 560).boundedTo(screen()->availableSize() * 0.9));
    dialog->show();
}

/** Zooms and keeps the pixel under @p about in place. */
void MainWindow::ZoomBy(int steps, const QPointF& about)
{
    const double scale = view->Scale() / devicePixelRatioF();
    const int next = int(steps > 0 ? std::floor(scale) : std::ceil(scale)) + steps;
    const QPointF pixel = view->ToWidget().inverted().map(about);
    const QPointF inView = view->mapToParent(about.toPoint());
    SetZoom(qBound(1, next, largestZoom));
    const QPointF now = view->ToWidget().map(pixel);
    scroll->horizontalScrollBar()->setValue(qRound(now.x() - inView.x()));
    scroll->verticalScrollBar()->setValue(qRound(now.y() - inView.y()));
}

/** Zooms as the user wants, but not so far out that LEDs are too small to see. */
void MainWindow::SetZoom(int wanted)
{
    zoom = wanted;
    const bool asLeds = leds->isChecked();
    view->SetPitch(asLeds ? pitch : 0);
    view->SetZoom(zoom > 0 && asLeds ? qMax(zoom, film::smallestLamp) : zoom);
    zoomBox->setCurrentIndex(view->Zoom());
    QEvent layout(QEvent::LayoutRequest); // resizes the display at once
    QCoreApplication::sendEvent(scroll, &layout);
}

/** Asks for the display of a new sign; starts with the values that were used last. */
void MainWindow::ChooseNew()
{
    auto* dialog = MakeDialog("new", tr("New scene"));
    auto* form = new display::DisplayForm(dialog);
    form->Show(QSettings().value("newDisplay", model::Sign().display).toSize(),
               QSettings().value("newAlpha", true).toBool());
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, dialog);
    buttons->addButton(tr("Create"), QDialogButtonBox::AcceptRole)->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    connect(dialog, &QDialog::accepted, this, [=] {
        QSettings().setValue("newDisplay", form->Size());
        QSettings().setValue("newAlpha", form->AlphaBlend());
        New(form->Size(), form->AlphaBlend());
    });
    dialog->setLayout(basics::Arrange(Qt::Vertical, 4 * basics::grid, {form, nullptr, buttons},
                                      4 * basics::grid));
    dialog->open();
}

bool MainWindow::Save(bool elsewhere)
{
    QString path = document.Path();
    if (elsewhere || path.isEmpty()) {
        path = QFileDialog::getSaveFileName(this, tr("Save scene"), path, tr("Scenes (*.json)"));
        if (path.isEmpty())
            return false;
        if (QFileInfo(path).suffix().isEmpty())
            path += ".json";
        AddRecent(path);
    }
    document.Save(path);
    return true;
}

void MainWindow::ShowExport()
{
    // Exporting plays all pages, so its ticks are not those of a single page.
    const bool isAll = transport->IsSchedule() || document.Current().PageCount() < 2;
    const ExportView seen{isAll ? &playback : nullptr, pitch, leds->isChecked(),
                          transport->IsSchedule()};
    auto* dialog = new ExportDialog(document.Current(), document.Path(), plugin, seen, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

/** Calls @p then, but asks first if the sign has unsaved changes. */
void MainWindow::Leave(const std::function<void()>& then)
{
    if (document.IsSaving()) {
        afterSave = then;
    } else if (!document.IsModified()) {
        then();
    } else {
        const auto save = [this, then] {
            if (Save())
                afterSave = then;
        };
        notices->Set(basics::NoticeBar::Leaving, tr("%1 has unsaved changes.").arg(document.Name()),
                     {{tr("Save"), save}, {tr("Don't save"), then}, {tr("Cancel"), {}}});
        notices->Offers().first()->setFocus();
    }
}

void MainWindow::AddRecent(const QString& path)
{
    QSettings settings;
    QStringList paths = settings.value("recent").toStringList();
    paths.removeAll(path);
    paths.prepend(path);
    settings.setValue("recent", QStringList(paths.mid(0, mostRecent)));
}

} // namespace AnimText::studio::window::shell
