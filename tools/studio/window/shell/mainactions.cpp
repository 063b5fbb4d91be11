// What the menus, the tool bar and the keys of the window do.
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
    QAction* add = Act(edit, tr("Add &text"), QKeySequence(tr("Ctrl+T")),
                       QStringLiteral("list-add"), [this] { AddNewText(false); });
    QAction* addPage = Act(edit, tr("Add &page"), QKeySequence(tr("Ctrl+Shift+T")),
                           QStringLiteral("list-add"), [this] { AddNewText(true); });
    Act(edit, tr("&Duplicate"), QKeySequence(tr("Ctrl+D")), QString(),
        [this] { DuplicateSelected(); });
    QAction* remove =
        Act(edit, tr("Re&move"), QKeySequence::Delete, QString(), [this] { RemoveSelected(); });
    // In a field the key is for letters.
    remove->setShortcutContext(Qt::WidgetShortcut);
    for (QWidget* widget : QList<QWidget*>{view, scenes, timeline})
        widget->addAction(remove);
    edit->addSeparator();
    Act(edit, tr("&Write"), QKeySequence(tr("F2")), QString(),
        [this] { inspector->Text()->BeginTyping(); });
    Act(edit, tr("Search &motions"), QKeySequence(tr("Ctrl+M")), QString(), [this] {
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

/** Calls "cut", "copy" or "paste" of the field that has the keyboard, else of that of the text. */
void MainWindow::EditWords(const char* slot)
{
    QWidget* focused = focusWidget();
    QWidget* field = qobject_cast<QLineEdit*>(focused);
    if (!field && focused)
        field = focused->findChild<QLineEdit*>(); // of a number
    if (!field)
        field = inspector->Text()->Editor();
    if (field->isEnabled())
        QMetaObject::invokeMethod(field, slot);
}

void MainWindow::MakeViewMenu()
{
    QMenu* look = menuBar()->addMenu(tr("&View"));
    Act(look, tr("&Fit"), QKeySequence(tr("Ctrl+0")), QString(), [this] { SetZoom(0); });
    const auto middle = [this] { return QPointF(view->visibleRegion().boundingRect().center()); };
    Act(look, tr("Zoom &in"), QKeySequence::ZoomIn, QString(), [=] { ZoomBy(1, middle()); });
    Act(look, tr("Zoom &out"), QKeySequence::ZoomOut, QString(), [=] { ZoomBy(-1, middle()); });
    look->addSeparator();
    leds = look->addAction(tr("&LEDs"));
    leds->setObjectName(QStringLiteral("leds"));
    leds->setCheckable(true);
    leds->setIcon(Icon(QStringLiteral("lamps")));
    leds->setShortcut(QKeySequence(tr("Ctrl+L")));
    leds->setToolTip(tr("Shows the pixels as round lamps (Ctrl+L)"));
    connect(leds, &QAction::toggled, this, &MainWindow::SetLeds);
    QMenu* distances = look->addMenu(tr("&Pitch of the LEDs"));
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
    QAction* chequered = look->addAction(tr("&Chequered beneath"));
    chequered->setCheckable(true);
    connect(chequered, &QAction::toggled, this, [this](bool on) {
        view->SetBeneath(on ? PictureView::Beneath::Chequered : PictureView::Beneath::Black);
    });
    QAction* frames = look->addAction(tr("Frames of all &areas"));
    frames->setCheckable(true);
    frames->setShortcut(QKeySequence(tr("Ctrl+F")));
    connect(frames, &QAction::toggled, view, &DisplayView::SetShowsFrames);
    QAction* rulers = look->addAction(tr("&Rulers"));
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
    // The keys are the window's own, so that fields in which one types have them first.
    const auto act = [&](const QString& words, const QString& key,
                         const std::function<void()>& does) {
        connect(play->addAction(words + QLatin1Char('\t') + key), &QAction::triggered, this, does);
    };
    act(tr("&Play or stop"), tr("Space"), [this] { playback.Toggle(); });
    auto* everywhere = new QAction(this);
    everywhere->setShortcut(QKeySequence(tr("Ctrl+Space")));
    connect(everywhere, &QAction::triggered, &playback, &Playback::Toggle);
    addAction(everywhere);
    act(tr("&Backwards, then faster"), QStringLiteral("J"), [this] { playback.Shuttle(-1); });
    act(tr("&Stop"), QStringLiteral("K"), [this] { playback.SetPace(0); });
    act(tr("&Forwards, then faster"), QStringLiteral("L"), [this] { playback.Shuttle(1); });
    play->addSeparator();
    act(tr("One tick back"), QStringLiteral("←"), [this] { playback.Seek(playback.Tick() - 1); });
    act(tr("One tick on"), QStringLiteral("→"), [this] { playback.Seek(playback.Tick() + 1); });
    act(tr("Ten ticks back"), tr("Shift+←"), [this] { playback.Seek(playback.Tick() - 10); });
    act(tr("Ten ticks on"), tr("Shift+→"), [this] { playback.Seek(playback.Tick() + 10); });
    act(tr("Previous page mark"), QStringLiteral("["),
        [this] { playback.Seek(timeline->PreviousMark(playback.Tick())); });
    act(tr("Next page mark"), QStringLiteral("]"),
        [this] { playback.Seek(timeline->NextMark(playback.Tick())); });
    act(tr("To the start"), tr("Home"), [this] { playback.Seek(0); });
    act(tr("To the end"), tr("End"), [this] { playback.Seek(playback.Length() - 1); });
    act(tr("&Loop the page, or stop looping"), QStringLiteral("R"), [this] { ToggleLoop(); });
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
    Act(help, tr("&Keys"), QKeySequence(tr("F1")), QString(), [this] { ShowKeys(); });
    Act(help, tr("&About"), QKeySequence(), QString(), [this] {
        auto* box = new QMessageBox(
            QMessageBox::NoIcon, tr("Animated Text Studio"),
            tr("<b>Animated Text Studio %1</b><p>What is seen here is what the plugin paints: "
               "the same library, the same pixels as on the sign.")
                .arg(QApplication::applicationVersion()),
            QMessageBox::Close, this);
        box->setAttribute(Qt::WA_DeleteOnClose);
        box->setModal(false);
        box->show();
    });
}

/** All keys, out of the menus, and those of the display and the fields. */
void MainWindow::ShowKeys()
{
    auto* dialog = new QDialog(this);
    dialog->setObjectName(QStringLiteral("keys"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(tr("Keys"));
    auto* list = new QTreeWidget(dialog);
    list->setHeaderLabels({tr("Key"), tr("What it does")});
    list->setRootIsDecorated(false);
    list->setAccessibleName(tr("Keys"));
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
        {tr("Ctrl+Space"), tr("Plays or stops, from any field")},
        {tr("Alt+arrows"), tr("Move the area; with Shift its size, with Ctrl by ten pixels")},
        {tr("Ctrl+wheel"), tr("Zooms the display or the timeline")},
        {tr("Space+drag, middle button"), tr("Pans the display")},
        {tr("Ctrl while dragging"), tr("Areas do not snap")},
        {tr("Shift+drag"), tr("Over the timeline: loops a range; over a number: steps by ten")},
        {tr("Esc"), tr("Leaves a field; on the display: selects no text")},
        {tr("Return"), tr("In a number: back to the display")},
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

/** The point of the widget stays where it is. */
void MainWindow::ZoomBy(int steps, const QPointF& about)
{
    const int zoom = qMax(1, int(view->Scale() / devicePixelRatioF()));
    const bool isBetween = view->Scale() / devicePixelRatioF() > zoom; // fitted
    const int next = zoom + steps + (isBetween && steps < 0 ? 1 : 0);
    const QPointF pixel = view->ToWidget().inverted().map(about);
    const QPointF inView = view->mapToParent(about.toPoint());
    SetZoom(qBound(1, next, largestZoom));
    QEvent layout(QEvent::LayoutRequest); // the display has its new size at once
    QCoreApplication::sendEvent(scroll, &layout);
    const QPointF now = view->ToWidget().map(pixel);
    scroll->horizontalScrollBar()->setValue(qRound(now.x() - inView.x()));
    scroll->verticalScrollBar()->setValue(qRound(now.y() - inView.y()));
}

void MainWindow::SetZoom(int zoom)
{
    view->SetZoom(zoom);
    zoom = view->Zoom(); // lamps may have asked for another
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

/** Back to the zoom that lamps were too small at; where they still are, they ask for it again. */
void MainWindow::LeaveLampZoom()
{
    if (plainZoom >= 0)
        SetZoom(std::exchange(plainZoom, -1));
    KeepLampsInSight();
}

/** Goes nearer where lamps are wanted and would be too small to see. */
void MainWindow::KeepLampsInSight()
{
    if (!leds->isChecked() || view->Picture().isNull() ||
        view->Scale() >= PictureView::smallestLamp)
        return;
    if (plainZoom < 0)
        plainZoom = view->Zoom();
    SetZoom(PictureView::smallestLamp);
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
        this, tr("Open a scene"), QFileInfo(document.Path()).path(), tr("Scenes (*.json)"));
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
    QString path = QFileDialog::getSaveFileName(this, tr("Save the scene"), document.Path(),
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
    // One page of several is not what is exported.
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

/** Does @p then when the sign may go; asks first where it has changes that are not saved. */
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
