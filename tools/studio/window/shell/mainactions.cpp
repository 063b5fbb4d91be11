// The window's menus, tool bar and keyboard shortcuts.
#include "film/lamps.h"
#include "studio/window/basics/style.h"
#include "studio/window/display/ledsdialog.h"
#include "studio/window/shell/exportdialog.h"
#include "studio/window/shell/mainwindow.h"
#include "studio/window/shell/newdialog.h"

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QScrollBar>
#include <QSettings>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <utility>

namespace AnimText {
namespace {

constexpr int mostRecent = 8;
constexpr int largestZoom = 16;

} // namespace

QAction* MainWindow::Act(QMenu* menu, const QString& words, const QKeySequence& key,
                         const QString& icon, const std::function<void()>& act)
{
    QAction* action = menu->addAction(words);
    action->setShortcut(key);
    if (!icon.isEmpty())
        action->setIcon(Icon(icon));
    QString name = words;
    name.remove(QLatin1Char('&'));
    name.remove(QStringLiteral("…"));
    action->setToolTip(key.isEmpty() ? name
                                     : QStringLiteral("%1 (%2)").arg(
                                           name, key.toString(QKeySequence::NativeText)));
    connect(action, &QAction::triggered, this, act);
    return action;
}

void MainWindow::MakeActions()
{
    tools = addToolBar(tr("Tools"));
    tools->setObjectName(QStringLiteral("tools"));
    tools->setMovable(false);
    tools->setIconSize(QSize(20, 20));
    MakeFileMenu();
    MakeEditMenu();
    MakeViewMenu();
    MakePlayMenu();
    MakeHelpMenu();
}

void MainWindow::MakeFileMenu()
{
    QMenu* file = menuBar()->addMenu(tr("&File"));
    QAction* fresh = Act(file, tr("&New…"), QKeySequence::New, QStringLiteral("document-new"),
                         [this] { Leave([this] { ChooseNew(); }); });
    QAction* open = Act(file, tr("&Open…"), QKeySequence::Open, QStringLiteral("document-open"),
                        [this] { ChooseAndOpen(); });
    recent = file->addMenu(tr("Open &recent"));
    connect(recent, &QMenu::aboutToShow, this, &MainWindow::ShowRecent);
    file->addSeparator();
    saveAction = Act(file, tr("&Save"), QKeySequence::Save, QStringLiteral("document-save"),
                     [this] { Save(); });
    Act(file, tr("Save &as…"), QKeySequence::SaveAs, QString(), [this] { SaveAs(); });
    file->addSeparator();
    QAction* film = Act(file, tr("&Export…"), QKeySequence(tr("Ctrl+E")),
                        QStringLiteral("document-export"), [this] { ShowExport(); });
    film->setObjectName(QStringLiteral("export"));
    file->addSeparator();
    Act(file, tr("&Quit"), QKeySequence::Quit, QString(), [this] { close(); });
    tools->addActions({fresh, open, saveAction});
    tools->addSeparator();
}

void MainWindow::MakeEditMenu()
{
    QMenu* edit = menuBar()->addMenu(tr("&Edit"));
    QAction* undo = document.Undo()->createUndoAction(this, tr("&Undo"));
    undo->setShortcut(QKeySequence::Undo);
    undo->setIcon(Icon(QStringLiteral("edit-undo")));
    QAction* redo = document.Undo()->createRedoAction(this, tr("&Redo"));
    redo->setShortcut(QKeySequence::Redo);
    redo->setIcon(Icon(QStringLiteral("edit-redo")));
    edit->addActions({undo, redo});
    tools->addActions({undo, redo});
    edit->addSeparator();
    Act(edit, tr("Cu&t"), QKeySequence::Cut, QStringLiteral("edit-cut"),
        [this] { EditWords("cut"); });
    Act(edit, tr("&Copy"), QKeySequence::Copy, QStringLiteral("edit-copy"),
        [this] { EditWords("copy"); });
    Act(edit, tr("&Paste"), QKeySequence::Paste, QStringLiteral("edit-paste"),
        [this] { EditWords("paste"); });
    Act(edit, tr("Paste &with styles"), QKeySequence(tr("Ctrl+Shift+V")), QString(), [this] {
        if (inspector->Text()->isEnabled())
            inspector->Text()->Editor()->PasteWithStyles();
    });
    edit->addSeparator();
    QAction* add = Act(edit, tr("Add te&xt"), QKeySequence(tr("Ctrl+T")),
                       QStringLiteral("list-add"), [this] { AddNewText(false); });
    QAction* addPage = Act(edit, tr("Add pa&ge"), QKeySequence(tr("Ctrl+Shift+T")),
                           QStringLiteral("list-add"), [this] { AddNewText(true); });
    Act(edit, tr("&Duplicate"), QKeySequence(tr("Ctrl+D")), QString(),
        [this] { DuplicateSelected(); });
    QAction* remove =
        Act(edit, tr("Re&move"), QKeySequence::Delete, QString(), [this] { RemoveSelected(); });
    // In a text field, Delete is for letters.
    remove->setShortcutContext(Qt::WidgetShortcut);
    for (QWidget* widget : QList<QWidget*>{view, scenes, timeline})
        widget->addAction(remove);
    edit->addSeparator();
    Act(edit, tr("&Edit text"), QKeySequence(tr("F2")), QString(),
        [this] { inspector->Text()->BeginTyping(); });
    Act(edit, tr("&Search motions"), QKeySequence(tr("Ctrl+M")), QString(), [this] {
        inspector->ensureWidgetVisible(inspector->Motions());
        inspector->Motions()->Search()->setFocus();
    });
    tools->addSeparator();
    tools->addAction(add);
    auto* film = findChild<QAction*>(QStringLiteral("export"));
    tools->addAction(film);
    for (QAction* action : {add, film})
        static_cast<QToolButton*>(tools->widgetForAction(action))
            ->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    for (QAction* action : {add, addPage}) {
        auto* button = new QToolButton(this);
        button->setText(action == add ? tr("Text") : tr("Page"));
        button->setIcon(action->icon());
        button->setToolTip(action->toolTip());
        button->setAccessibleName(action->iconText());
        connect(button, &QToolButton::clicked, action, &QAction::trigger);
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
    Act(look, tr("&Fit to window"), QKeySequence(tr("Ctrl+0")), QString(), [this] { SetZoom(0); });
    const auto middle = [this] { return QPointF(view->visibleRegion().boundingRect().center()); };
    Act(look, tr("Zoom &in"), QKeySequence::ZoomIn, QString(), [=] { ZoomBy(1, middle()); });
    Act(look, tr("Zoom &out"), QKeySequence::ZoomOut, QString(), [=] { ZoomBy(-1, middle()); });
    look->addSeparator();
    leds = look->addAction(tr("&LEDs"));
    leds->setObjectName(QStringLiteral("leds"));
    leds->setCheckable(true);
    leds->setIcon(Icon(QStringLiteral("lamps")));
    leds->setShortcut(QKeySequence(tr("Ctrl+L")));
    leds->setToolTip(tr("Show the pixels as round LEDs (Ctrl+L)"));
    connect(leds, &QAction::toggled, this, &MainWindow::SetLeds);
    QMenu* distances = look->addMenu(tr("LED &pitch"));
    pitches = new QActionGroup(this);
    for (double diameters : {1.0, 1.25, 1.5, 2.0, 3.0}) {
        QAction* action =
            distances->addAction(tr("%1 diameters").arg(locale().toString(diameters)));
        action->setCheckable(true);
        action->setData(diameters);
        pitches->addAction(action);
    }
    connect(pitches, &QActionGroup::triggered, this, [this](const QAction* action) {
        SetPitch(action->data().toDouble());
        leds->setChecked(true);
    });
    QAction* checkered = look->addAction(tr("&Checkered background"));
    checkered->setCheckable(true);
    connect(checkered, &QAction::toggled, view, &PictureView::SetCheckered);
    QAction* frames = look->addAction(tr("Show all &areas"));
    frames->setCheckable(true);
    frames->setShortcut(QKeySequence(tr("Ctrl+F")));
    connect(frames, &QAction::toggled, view, &DisplayView::SetShowsFrames);
    QAction* rulers = look->addAction(tr("Show &rulers"));
    rulers->setCheckable(true);
    rulers->setShortcut(QKeySequence(tr("Ctrl+R")));
    connect(rulers, &QAction::toggled, view, &DisplayView::SetShowsRulers);
    look->addSeparator();
    look->addActions(createPopupMenu()->actions());

    auto* space = new QWidget(this);
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    tools->addWidget(space);
    zoomBox = new QComboBox(this);
    zoomBox->setAccessibleName(tr("Zoom"));
    zoomBox->setToolTip(tr("Zoom (Ctrl+wheel, Ctrl+0, Ctrl++, Ctrl+-)"));
    zoomBox->addItem(tr("Fit"), 0);
    for (int zoom : {1, 2, 3, 4, 6, 8, 12, 16})
        zoomBox->addItem(tr("%1 ×").arg(zoom), zoom);
    connect(zoomBox, qOverload<int>(&QComboBox::activated), this,
            [this] { SetZoom(zoomBox->currentData().toInt()); });
    tools->addWidget(zoomBox);
    tools->addAction(leds);
    auto* button = static_cast<QToolButton*>(tools->widgetForAction(leds));
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setPopupMode(QToolButton::MenuButtonPopup);
    button->setMenu(distances);
}

void MainWindow::MakePlayMenu()
{
    QMenu* play = menuBar()->addMenu(tr("&Play"));
    // Not shortcuts: the window handles the keys, so that text fields get them first.
    const auto act = [&](const QString& words, const QString& key,
                         const std::function<void()>& does) {
        connect(play->addAction(words + QLatin1Char('\t') + key), &QAction::triggered, this, does);
    };
    act(tr("&Play or stop"), tr("Space"), [this] { playback.Toggle(); });
    auto* everywhere = new QAction(this);
    everywhere->setShortcut(QKeySequence(tr("Ctrl+Space")));
    connect(everywhere, &QAction::triggered, &playback, &Playback::Toggle);
    addAction(everywhere);
    act(tr("Play &backward, then faster"), QStringLiteral("J"), [this] { playback.Shuttle(-1); });
    act(tr("&Stop"), QStringLiteral("K"), [this] { playback.SetPace(0); });
    act(tr("Play &forward, then faster"), QStringLiteral("L"), [this] { playback.Shuttle(1); });
    play->addSeparator();
    act(tr("One tick back"), QStringLiteral("←"), [this] { playback.Seek(playback.Tick() - 1); });
    act(tr("One tick forward"), QStringLiteral("→"),
        [this] { playback.Seek(playback.Tick() + 1); });
    act(tr("Ten ticks back"), tr("Shift+←"), [this] { playback.Seek(playback.Tick() - 10); });
    act(tr("Ten ticks forward"), tr("Shift+→"), [this] { playback.Seek(playback.Tick() + 10); });
    act(tr("Previous page mark"), QStringLiteral("["),
        [this] { playback.Seek(timeline->PreviousMark(playback.Tick())); });
    act(tr("Next page mark"), QStringLiteral("]"),
        [this] { playback.Seek(timeline->NextMark(playback.Tick())); });
    act(tr("Go to start"), tr("Home"), [this] { playback.Seek(0); });
    act(tr("Go to end"), tr("End"), [this] { playback.Seek(playback.Length() - 1); });
    act(tr("Turn page &loop on or off"), QStringLiteral("R"), [this] { ToggleLoop(); });
    play->addSeparator();
    Act(play, tr("Play on L&EDs…"), QKeySequence(), QString(), [this] {
        auto* dialog = new LedsDialog(document.Current().display, document.Path(), this);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        connect(&rehearsal, &Rehearsal::Shown, dialog, &LedsDialog::Show);
        dialog->Show(view->Picture());
        dialog->show();
    });
}

void MainWindow::MakeHelpMenu()
{
    QMenu* help = menuBar()->addMenu(tr("&Help"));
    Act(help, tr("&Keyboard shortcuts"), QKeySequence(tr("F1")), QString(), [this] { ShowKeys(); });
    Act(help, tr("&About"), QKeySequence(), QString(), [this] {
        auto* box = new QMessageBox(QMessageBox::NoIcon, tr("Animated Text Studio"),
                                    tr("<b>Animated Text Studio %1</b><p>The plugin itself paints "
                                       "the preview, so it shows the same pixels as the sign.")
                                        .arg(QApplication::applicationVersion()),
                                    QMessageBox::Close, this);
        box->setAttribute(Qt::WA_DeleteOnClose);
        box->setModal(false);
        box->show();
    });
}

/** Lists all keys: those of the menus, the display and the fields. */
void MainWindow::ShowKeys()
{
    auto* dialog = new QDialog(this);
    dialog->setObjectName(QStringLiteral("keys"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(tr("Keyboard shortcuts"));
    auto* list = new QTreeWidget(dialog);
    list->setHeaderLabels({tr("Keys"), tr("Action")});
    list->setRootIsDecorated(false);
    list->setAccessibleName(tr("Keyboard shortcuts"));
    for (const QAction* menu : menuBar()->actions()) {
        auto* group = new QTreeWidgetItem(list, {menu->text().remove(QLatin1Char('&'))});
        for (const QAction* action : menu->menu()->actions()) {
            QString words = action->text().remove(QLatin1Char('&'));
            QString key = action->shortcut().toString(QKeySequence::NativeText);
            if (key.isEmpty())
                key = words.section(QLatin1Char('\t'), 1);
            words = words.section(QLatin1Char('\t'), 0, 0);
            if (!key.isEmpty())
                new QTreeWidgetItem(group, {key, words});
        }
    }
    auto* display = new QTreeWidgetItem(list, {tr("Display and fields")});
    const QPair<QString, QString> others[]{
        {tr("Ctrl+Space"), tr("Play or stop, from any field")},
        {tr("Alt+arrows"), tr("Move the area by 1 px. Shift: resize it. Ctrl: by 10 px")},
        {tr("Ctrl+wheel"), tr("Zoom the display or the timeline")},
        {tr("Space+drag, middle button"), tr("Scroll the display")},
        {tr("Ctrl while dragging"), tr("Move or resize the area without snapping")},
        {tr("Shift+drag"), tr("Timeline: loop a range. Number: change it in steps of 10")},
        {tr("Esc"), tr("Leave a field. Display: clear the selection")},
        {tr("Return"), tr("Number: return to the display")},
    };
    for (const auto& other : others)
        new QTreeWidgetItem(display, {other.first, other.second});
    list->expandAll();
    list->resizeColumnToContents(0);
    auto* layout = new QVBoxLayout(dialog);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(list);
    dialog->resize(QSize(560, 560).boundedTo(screen()->availableSize() * 0.9));
    dialog->show();
}

/** Zooms and keeps the pixel under @p about in place. */
void MainWindow::ZoomBy(int steps, const QPointF& about)
{
    const int zoom = qMax(1, int(view->Scale() / devicePixelRatioF()));
    const bool isBetween = view->Scale() / devicePixelRatioF() > zoom; // fitted
    const int next = zoom + steps + (isBetween && steps < 0 ? 1 : 0);
    const QPointF pixel = view->ToWidget().inverted().map(about);
    const QPointF inView = view->mapToParent(about.toPoint());
    SetZoom(qBound(1, next, largestZoom));
    QEvent layout(QEvent::LayoutRequest); // resizes the display at once
    QCoreApplication::sendEvent(scroll, &layout);
    const QPointF now = view->ToWidget().map(pixel);
    scroll->horizontalScrollBar()->setValue(qRound(now.x() - inView.x()));
    scroll->verticalScrollBar()->setValue(qRound(now.y() - inView.y()));
}

void MainWindow::SetZoom(int zoom)
{
    view->SetZoom(zoom);
    zoom = view->Zoom(); // LEDs may have required another
    int index = zoomBox->findData(zoom);
    if (index < 0) {
        zoomBox->addItem(tr("%1 ×").arg(zoom), zoom);
        index = zoomBox->count() - 1;
    }
    zoomBox->setCurrentIndex(index);
}

void MainWindow::SetLeds(bool on)
{
    view->SetPitch(on ? pitch : 0);
    KeepLampsInSight();
    if (!on)
        LeaveLampZoom();
}

/** Returns to the zoom from before KeepLampsInSight(), unless LEDs still need theirs. */
void MainWindow::LeaveLampZoom()
{
    if (plainZoom >= 0)
        SetZoom(std::exchange(plainZoom, -1));
    KeepLampsInSight();
}

/** Zooms in if LEDs are on and would be too small to see. */
void MainWindow::KeepLampsInSight()
{
    if (!leds->isChecked() || view->Picture().isNull() || view->Scale() >= smallestLamp)
        return;
    if (plainZoom < 0)
        plainZoom = view->Zoom();
    SetZoom(smallestLamp);
}

void MainWindow::SetPitch(double diameters)
{
    pitch = diameters;
    for (QAction* action : pitches->actions())
        action->setChecked(qFuzzyCompare(action->data().toDouble(), pitch));
    SetLeds(leds->isChecked());
}

void MainWindow::ChooseNew()
{
    auto* dialog = new NewDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this,
            [this, dialog] { New(dialog->Form()->Size(), dialog->Form()->AlphaBlend()); });
    dialog->open();
}

void MainWindow::ChooseAndOpen()
{
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Open scene"), QFileInfo(document.Path()).path(), tr("Scenes (*.json)"));
    if (!path.isEmpty())
        Leave([this, path] { Open(path); });
}

bool MainWindow::Save()
{
    if (document.Path().isEmpty())
        return SaveAs();
    document.Save(document.Path());
    return true;
}

bool MainWindow::SaveAs()
{
    QString path = QFileDialog::getSaveFileName(this, tr("Save scene"), document.Path(),
                                                tr("Scenes (*.json)"));
    if (path.isEmpty())
        return false;
    if (QFileInfo(path).suffix().isEmpty())
        path += QStringLiteral(".json");
    document.Save(path);
    AddRecent(path);
    return true;
}

void MainWindow::ShowExport()
{
    ExportView seen;
    // Exporting plays all pages, so its ticks are not those of a single page.
    if (transport->IsSchedule() || document.Current().PageCount() < 2) {
        seen.tick = playback.Tick();
        seen.length = playback.Length();
        if (playback.HasLoop()) {
            seen.loopFirst = playback.LoopBegin();
            seen.loopLast = playback.LoopEnd();
        }
    }
    seen.schedule = transport->IsSchedule();
    seen.pitch = pitch;
    seen.lamps = leds->isChecked();
    auto* dialog = new ExportDialog(document.Current(), document.Path(), plugin, seen, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

/** Calls @p then, but asks first if the sign has unsaved changes. */
void MainWindow::Leave(const std::function<void()>& then)
{
    if (document.IsSaving()) {
        afterSave = then;
        return;
    }
    if (!document.IsModified()) {
        then();
        return;
    }
    const auto save = [this, then] {
        afterSave = then;
        if (!Save())
            afterSave = {};
    };
    notices->Set(NoticeBar::Leaving, tr("%1 has unsaved changes.").arg(document.Name()),
                 {{tr("Save"), save}, {tr("Don't save"), then}, {tr("Cancel"), {}}});
    notices->Offers().first()->setFocus();
}

void MainWindow::ShowRecent()
{
    recent->clear();
    for (const QString& path : QSettings().value(QStringLiteral("recent")).toStringList()) {
        QAction* action = recent->addAction(QFileInfo(path).fileName());
        action->setToolTip(path);
        action->setEnabled(QFileInfo::exists(path));
        connect(action, &QAction::triggered, this,
                [this, path] { Leave([this, path] { Open(path); }); });
    }
    recent->setToolTipsVisible(true);
    if (recent->isEmpty())
        recent->addAction(tr("No recent scenes"))->setEnabled(false);
}

void MainWindow::AddRecent(const QString& path)
{
    QSettings settings;
    QStringList paths = settings.value(QStringLiteral("recent")).toStringList();
    paths.removeAll(path);
    paths.prepend(path);
    settings.setValue(QStringLiteral("recent"), QStringList(paths.mid(0, mostRecent)));
}

} // namespace AnimText
