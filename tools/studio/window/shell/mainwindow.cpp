#include "studio/window/shell/mainwindow.h"

#include "studio/window/basics/style.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QLocale>
#include <QMimeData>
#include <QScreen>
#include <QScrollBar>
#include <QSettings>

#include <utility>

namespace AnimText::studio::window::shell {
namespace {

/** Sets the dock's title, but keeps its name in the View menu. */
void SetTitle(QDockWidget* dock, const QString& title)
{
    const QString name = dock->toggleViewAction()->text();
    dock->setWindowTitle(title);
    dock->toggleViewAction()->setText(name);
}

constexpr int dimmingDelay = 100; // milliseconds until a stale picture is dimmed
const QColor surroundings(96, 96, 96);
constexpr QSize largestStandardSize(1760, 1040);

} // namespace

MainWindow::MainWindow(const QString& plugin)
    : plugin(plugin)
    , recovery(&document)
    , rehearsal(plugin)
    , thumbnails(plugin)
{
    setObjectName("studio");
    setAcceptDrops(true);
    setDockNestingEnabled(true);
    dimming.setSingleShot(true);
    dimming.setInterval(dimmingDelay);
    MakePanes();
    MakeFileMenu();
    MakeEditMenu();
    MakeViewMenu();
    MakePlayMenu();
    MakeHelpMenu();
    Connect();
    setTabOrder(inspector->Text()->Editor(), view); // one Tab from typing to playing
    for (QComboBox* box : findChildren<QComboBox*>())
        box->installEventFilter(this);
    resize((screen()->availableSize() * 0.92).boundedTo(largestStandardSize));
    const QSettings settings;
    restoreGeometry(settings.value("geometry").toByteArray());
    restoreState(settings.value("docks").toByteArray());
    center->restoreState(settings.value("center").toByteArray());
    leds->setChecked(settings.value("leds").toBool());
    Arrange();
}

MainWindow::~MainWindow()
{
    // The slots must not run while the widgets are destroyed.
    document.disconnect(this);
    rehearsal.disconnect(this);
    for (QObject* part : findChildren<QObject*>())
        part->disconnect(this);
}

/** The display above its time, with the docks around them. */
void MainWindow::MakePanes()
{
    view->SetSurroundings(surroundings);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus); // the display inside has the focus
    scroll->setWidgetResizable(true);
    scroll->setWidget(view);
    tools->setObjectName("tools");
    tools->setMovable(false);
    tools->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    tools->setIconSize(QSize(20, 20));
    auto* bottom = new QWidget(this);
    bottom->setLayout(basics::Arrange(Qt::Vertical, 0, {transport, timeline}));
    center->addWidget(scroll);
    center->addWidget(bottom);
    center->setStretchFactor(0, 1);
    center->setCollapsible(0, false);
    setCentralWidget(center);

    const auto add = [this](QDockWidget* dock, const QString& name, QWidget* widget,
                            Qt::DockWidgetArea area) {
        dock->setObjectName(name);
        dock->setWidget(widget);
        addDockWidget(area, dock);
    };
    auto* pages = new QWidget(this);
    pages->setLayout(basics::Arrange(Qt::Vertical, 0, {scenes, sceneTools}));
    add(sceneDock, "scene", pages, Qt::LeftDockWidgetArea);
    add(textDock, "text", inspector, Qt::RightDockWidgetArea);
    add(findingsDock, "findings", findings, Qt::LeftDockWidgetArea);
    connect(findings, &findings::FindingsList::CountChanged, this, [this](int count) {
        SetTitle(findingsDock,
                 count == 0 ? tr("No problems") : tr("%n problem(s)", nullptr, count));
    });
    add(integratorDock, "integrator", integrator, Qt::BottomDockWidgetArea);
    integratorDock->hide();
    resizeDocks({sceneDock, textDock}, {216, 430}, Qt::Horizontal);
    resizeDocks({sceneDock, findingsDock}, {400, 160}, Qt::Vertical);
}

void MainWindow::Connect()
{
    connect(&document, &model::Document::Replaced, this, [this] {
        notices->Set(basics::NoticeBar::Disk, QString());
        notices->Set(basics::NoticeBar::Save, QString());
        playback.Seek(0);
        selected = document.Current().texts.isEmpty() ? 0 : document.Current().texts.first().id;
    });
    connect(&document, &model::Document::Changed, this, &MainWindow::Refresh);
    connect(&document, &model::Document::Revisited, this, &MainWindow::Select);
    connect(&document, &model::Document::StateChanged, this, &MainWindow::ShowState);
    connect(&document, &model::Document::SaveEnded, this, [this](bool saved, const QString& error) {
        notices->Set(basics::NoticeBar::Save, saved ? QString() : tr("Not saved: %1").arg(error),
                     {{tr("Save as…"), [this] { Save(true); }}, {tr("Dismiss"), {}}});
        const auto then = std::exchange(afterSave, {});
        if (then && saved)
            Leave(then);
    });
    connect(&document, &model::Document::DiskChanged, this, [this] {
        // Either way, a failed save no longer matters.
        const auto load = [this] {
            QString error;
            if (document.LoadTheirs(&error))
                notices->Set(basics::NoticeBar::Save, QString());
            else
                notices->Set(basics::NoticeBar::Failed, error, {{tr("Dismiss"), {}}});
        };
        const auto keep = [this] {
            document.KeepMine();
            notices->Set(basics::NoticeBar::Save, QString());
        };
        notices->Set(basics::NoticeBar::Disk, tr("%1 has changed on disk.").arg(document.Name()),
                     {{tr("Load from disk"), load},
                      {tr("Keep my version"), keep},
                      {tr("Save my version as…"), [this] { Save(true); }}});
    });

    connect(&rehearsal, &worker::Rehearsal::Shown, this, [this](const QImage& picture) {
        dimming.stop();
        view->SetDimmed(false);
        view->SetPicture(picture);
    });
    connect(&rehearsal, &worker::Rehearsal::Stale, this, [this] {
        timeline->MarkStale();
        if (!dimming.isActive())
            dimming.start();
    });
    connect(&dimming, &QTimer::timeout, this, [this] { view->SetDimmed(true); });
    connect(&rehearsal, &worker::Rehearsal::TimingChanged, this, &MainWindow::ShowTiming);
    connect(&rehearsal, &worker::Rehearsal::FindingsChanged, this,
            [this](const QList<validate::Finding>& list) {
                findings->Show(list, document.Current());
                inspector->SetFindings(findings->Of(selected));
            });
    connect(findings, &findings::FindingsList::Selected, this, &MainWindow::Select);
    connect(findings, &findings::FindingsList::Edited, this, &MainWindow::Edit);
    connect(&rehearsal, &worker::Rehearsal::Trouble, this,
            [this](const QString& why) { notices->Set(basics::NoticeBar::Trouble, why); });

    playback.isReady = [this](int tick) {
        if (rehearsal.Has(tick))
            return true;
        rehearsal.Look(tick);
        return false;
    };
    connect(&playback, &time::Playback::TickChanged, &rehearsal, &worker::Rehearsal::Look);

    connect(integrator, &form::IntegratorView::FaultsChanged, this, &MainWindow::Rehearse);
    // Calls are recorded only while they are visible.
    connect(integratorDock, &QDockWidget::visibilityChanged, this, &MainWindow::Rehearse,
            Qt::QueuedConnection);
    connect(integrator, &form::IntegratorView::LibraryChosen, this, &MainWindow::CompareWith);
    connect(&rehearsal, &worker::Rehearsal::Shown, this, &MainWindow::ShowCalls);
    // They would scroll, or move in themselves, on keys that move through time.
    for (QObject* taker : QList<QObject*>{scroll, timeline, scenes, inspector->Motions()->List()})
        taker->installEventFilter(this);
    connect(scenes, &SceneList::Selected, this, &MainWindow::SelectOnPage);
    connect(scenes, &SceneList::Renamed, this, &MainWindow::Rename);
    connect(scenes, &SceneList::TextDropped, this, &MainWindow::PutText, Qt::QueuedConnection);
    connect(scenes, &SceneList::PageDropped, this, &MainWindow::PutPage, Qt::QueuedConnection);
    connect(scenes, &SceneList::customContextMenuRequested, this, [this](const QPoint& point) {
        ShowObjectMenu(scenes->viewport()->mapToGlobal(point));
    });
    connect(timeline, &time::Timeline::MenuWanted, this, &MainWindow::ShowObjectMenu);
    connect(view, &display::DisplayView::MenuWanted, this, &MainWindow::ShowObjectMenu);
    connect(timeline, &time::Timeline::Selected, this, &MainWindow::Select);
    connect(view, &display::DisplayView::Selected, this, &MainWindow::Select);
    connect(view, &display::DisplayView::ZoomWanted, this, &MainWindow::ZoomBy);
    connect(view, &display::DisplayView::PlayWanted, &playback, &time::Playback::Toggle);
    connect(view, &display::DisplayView::Panned, this, [this](const QPoint& by) {
        scroll->horizontalScrollBar()->setValue(scroll->horizontalScrollBar()->value() - by.x());
        scroll->verticalScrollBar()->setValue(scroll->verticalScrollBar()->value() - by.y());
    });
    for (QScrollBar* bar : {scroll->horizontalScrollBar(), scroll->verticalScrollBar()})
        connect(bar, &QScrollBar::valueChanged, view, qOverload<>(&QWidget::update)); // its rulers
    connect(inspector->Display(), &display::DisplayForm::Edited, this, [this](int gesture) {
        Change(
            tr("Display"),
            [this](model::Sign* sign) {
                model::ResizeDisplay(sign, inspector->Display()->Size());
                sign->alphaBlend = inspector->Display()->AlphaBlend();
            },
            gesture < 0 ? QString() : QStringLiteral("display %1").arg(gesture));
    });
    connect(view, &display::DisplayView::DisplayDoubleClicked, inspector->Text(),
            &text::TextPanel::BeginTyping);
    connect(view, &display::DisplayView::AreaChanged, this,
            [this](int id, const QRect& rect, int gesture) {
                Select(id);
                Edit(tr("Change area"), QStringLiteral("area %1").arg(gesture),
                     [rect](model::SignText* text) {
                         text->node.pos = rect.topLeft();
                         text->node.size = rect.size();
                     });
            });
    connect(inspector, &form::Inspector::Edited, this, &MainWindow::Edit);
    connect(transport, &time::TransportBar::ScheduleChanged, this, &MainWindow::Rehearse);
    connect(transport, &time::TransportBar::LoopToggled, this, &MainWindow::ToggleLoop);
}

void MainWindow::CompareWith(const QString& library)
{
    compared.reset();
    view->SetCompared(QImage());
    if (library.isEmpty())
        return;
    compared = std::make_unique<worker::Rehearsal>(library);
    connect(&playback, &time::Playback::TickChanged, compared.get(), &worker::Rehearsal::Look);
    connect(compared.get(), &worker::Rehearsal::Shown, this, &MainWindow::ShowCalls);
    connect(compared.get(), &worker::Rehearsal::Trouble, this, [this, library](const QString& why) {
        if (!why.isEmpty())
            notices->Set(basics::NoticeBar::Failed, QStringLiteral("%1: %2").arg(library, why),
                         {{tr("Dismiss"), {}}});
    });
    compared->SetSign(document.Current(), part);
    compared->Look(playback.Tick());
}

/** Shows the calls of the current tick and the comparison with the other library. */
void MainWindow::ShowCalls()
{
    if (integrator->isVisible())
        integrator->ShowCalls(rehearsal.Tick(), rehearsal.Calls(rehearsal.Tick()));
    if (!compared)
        return;
    const bool bothThere =
        compared->IsCurrent() && rehearsal.IsCurrent() && compared->Tick() == rehearsal.Tick();
    view->SetCompared(bothThere ? compared->Picture(rehearsal.Tick()) : QImage());
    integrator->ShowDifferences(bothThere ? view->Differences() : -1);
}

bool MainWindow::Open(const QString& path)
{
    QString error;
    if (!document.Open(path, &error)) {
        notices->Set(basics::NoticeBar::Failed, error, {{tr("Dismiss"), {}}});
        return false;
    }
    notices->Set(basics::NoticeBar::Failed, QString());
    AddRecent(document.Path());
    view->setFocus(); // Space plays
    return true;
}

void MainWindow::New(const QSize& display, bool alphaBlend)
{
    document.New(display, alphaBlend);
    inspector->Text()->BeginTyping();
}

int MainWindow::CurrentPage() const
{
    const model::SignText* text = document.Current().Find(selected);
    return text ? text->page : qBound(0, shownPage, qMax(0, document.Current().PageCount() - 1));
}

void MainWindow::Select(int id)
{
    if (id != selected)
        SelectOnPage(CurrentPage(), id);
}

/** Selects the text @p id or, if it is 0, none of @p page; a negative page is the current one. */
void MainWindow::SelectOnPage(int page, int id)
{
    const int before = CurrentPage();
    selected = id;
    shownPage = page < 0 ? before : page;
    if (before != CurrentPage() && !transport->IsSchedule())
        playback.Seek(0);
    Refresh();
}

/** Updates all views of the sign. */
void MainWindow::Refresh()
{
    const model::Sign& sign = document.Current();
    if (selected != 0 && !sign.Find(selected))
        selected = sign.texts.isEmpty() ? 0 : sign.texts.last().id;
    scenes->Show(sign);
    if (scenes->PageOfRow() >= 0)
        shownPage = scenes->PageOfRow(); // it may have been moved
    scenes->Select(selected);
    const model::SignText* text = sign.Find(selected);
    inspector->Show(sign, text);
    const QString title = text ? text->Title() : tr("Display");
    SetTitle(textDock, title.isEmpty() ? tr("Text") : title);
    QVector<display::AreaFrame> frames;
    for (const model::SignText& text : TextsOf(CurrentPage()))
        frames.append({text.id, QRect(text.node.pos, text.node.size)});
    view->SetFrames(frames, selected);
    timeline->SetSelected(selected);
    inspector->SetFindings(findings->Of(selected));
    Rehearse();
}

void MainWindow::OfferLostWork()
{
    const QList<model::LostWork> lost = recovery.Find();
    if (lost.isEmpty())
        return;
    const model::LostWork& work = lost.first();
    const QString name =
        work.path.isEmpty() ? tr("an untitled scene") : QFileInfo(work.path).fileName();
    notices->Set(
        basics::NoticeBar::Recovery,
        tr("The studio stopped before %1 was saved (%2).")
            .arg(name, QLocale().toString(work.when, QLocale::ShortFormat)),
        {{tr("Restore"), [this, work] { Leave([this, work] { recovery.TakeOver(work); }); }},
         {tr("Delete copy"), [this, work] {
              model::Recovery::Drop(work);
              OfferLostWork(); // there may be more
          }}});
}

void MainWindow::Rehearse()
{
    const model::Sign& sign = document.Current();
    part.schedule = transport->IsSchedule();
    part.page = part.schedule ? -1 : CurrentPage();
    part.calls = integrator->isVisible();
    part.faults = part.calls ? integrator->Faults() : QVector<QPair<qint32, qint32>>();
    if (!sign.IsLaidOut()) {
        if (!dimming.isActive())
            dimming.start();
        return;
    }
    rehearsal.SetSign(sign, part);
    if (compared)
        compared->SetSign(sign, part);
}

/** Shows the times in the timeline, and those of the text, its page and all pages as words. */
void MainWindow::ShowTiming()
{
    const worker::Timing& timing = rehearsal.GetTiming();
    const QList<model::SignText> texts = TextsOf(part.page);
    const auto inTurn = [](worker::TextTime all, const worker::TextTime& next) {
        all.planned += next.planned;
        all.actual += next.actual;
        if (next.ending == timing::Ending::TooLong)
            all.ending = next.ending;
        return all;
    };
    const worker::TextTime none = time::SideBySide({});
    QVector<time::TimelineRow> rows;
    QStringList lines;
    const worker::TextTime* shown = nullptr;
    QMap<int, QMap<int, worker::TextTime>> pages; // the texts of an area play one after another
    for (int i = 0; i < qMin(texts.size(), timing.texts.size()); ++i) {
        const model::SignText& text = texts.at(i);
        const worker::TextTime& time = timing.texts.at(i);
        const int plays = text.node.attributes.value("PlayTimes").toInt();
        rows.append({text.id, text.Title(), plays, time});
        QMap<int, worker::TextTime>& areas = pages[text.page];
        areas[text.area] = inTurn(areas.value(text.area, none), time);
        if (text.id == selected) {
            lines.append(tr("Text: %1").arg(time::EndsInWords(time)));
            shown = &time;
        }
    }
    timeline->SetRows(rows, timing.Ticks());
    playback.SetLength(timing.Ticks());
    if (timing.texts.size() != texts.size()) {
        transport->ShowEnds(nullptr, QString());
        return;
    }
    worker::TextTime program = none;
    worker::TextTime page = none;
    for (auto own = pages.begin(); own != pages.end(); ++own) {
        const worker::TextTime times = time::SideBySide(own->values().toVector());
        program = inTurn(program, times);
        lines.append(tr("Page %1: %2").arg(own.key() + 1).arg(time::EndsInWords(times)));
        if (own.key() == CurrentPage())
            page = times;
    }
    if (part.page < 0) // otherwise, the other pages have not been measured
        lines.append(tr("All pages: %1").arg(time::EndsInWords(program)));
    if (!shown)
        shown = part.page >= 0 || scenes->PageOfRow() >= 0 ? &page : &program;
    transport->ShowEnds(shown, lines.join(QLatin1Char('\n')));
}

void MainWindow::ShowState()
{
    setWindowTitle(QStringLiteral("%1[*] — %2").arg(document.Name(), tr("Animated Text Studio")));
    setWindowFilePath(document.Path());
    setWindowModified(document.IsModified());
    saveAction->setEnabled(document.IsModified() || document.Path().isEmpty());
}

void MainWindow::Edit(const QString& what, const QString& merge, const model::TextChange& change)
{
    if (document.Current().Find(selected))
        Change(
            what, [&](model::Sign* sign) { change(sign->Find(selected)); },
            merge.isEmpty() ? merge : QStringLiteral("%1 %2").arg(selected).arg(merge));
}

bool MainWindow::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::Wheel && qobject_cast<QComboBox*>(object)) {
        event->ignore(); // scroll the panel, but do not change a choice under the mouse
        return true;
    }
    if (event->type() != QEvent::KeyPress || qobject_cast<QComboBox*>(object))
        return QMainWindow::eventFilter(object, event);
    auto* key = static_cast<QKeyEvent*>(event);
    const bool isPlayKey = key->key() == Qt::Key_Space && key->modifiers() == Qt::NoModifier;
    if (qobject_cast<QAbstractItemView*>(object) && !isPlayKey)
        return false; // lists handle their own keys
    keyPressEvent(key);
    return event->isAccepted();
}

void MainWindow::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    if (view->HandleAreaKey(key, event->modifiers()))
        return;
    const bool isNumber = qobject_cast<QAbstractSpinBox*>(focusWidget());
    const bool leaves =
        key == Qt::Key_Escape || (isNumber && (key == Qt::Key_Return || key == Qt::Key_Enter));
    const int shift = int(event->modifiers() & Qt::ShiftModifier);
    if (leaves && focusWidget() != view)
        view->setFocus(); // where keys move through time
    else if (leaves && selected != 0)
        Select(0);
    else if (QAction* action = playKeys.value(key | shift, playKeys.value(key)))
        action->trigger();
    else
        QMainWindow::keyPressEvent(event);
}

void MainWindow::ToggleLoop()
{
    const QPair<int, int> page = timeline->PageAt(playback.Tick());
    if (playback.HasLoop())
        playback.ClearLoop();
    else
        playback.SetLoop(page.first, page.second);
}

void MainWindow::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    // Queued, because docks must not move during their layout.
    QMetaObject::invokeMethod(this, &MainWindow::Arrange, Qt::QueuedConnection);
}

/** Turns the docks into tabs in a narrow window, to keep room for the display. */
void MainWindow::Arrange()
{
    constexpr int roomForDisplay = 440;
    constexpr int roomForScene = 200;
    const int available = isVisible() ? width() : qMin(width(), screen()->availableSize().width());
    const bool narrow = available < roomForScene + roomForDisplay + inspector->minimumWidth();
    if (narrow != wideDocks.isEmpty())
        return;
    if (!narrow) {
        restoreState(std::exchange(wideDocks, {}));
        return;
    }
    wideDocks = saveState();
    for (QDockWidget* dock : {sceneDock, findingsDock}) {
        if (!dock->isFloating())
            tabifyDockWidget(textDock, dock);
    }
    textDock->raise();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!mayClose && (document.IsModified() || document.IsSaving())) {
        event->ignore();
        Leave([this] {
            mayClose = true;
            close();
        });
        return;
    }
    QSettings settings;
    settings.setValue("geometry", saveGeometry());
    settings.setValue("docks", wideDocks.isEmpty() ? saveState() : wideDocks);
    settings.setValue("center", center->saveState());
    settings.setValue("leds", leds->isChecked());
    settings.setValue("pitch", pitch);
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    const QList<QUrl> urls = event->mimeData()->urls();
    if (urls.size() == 1 && urls.first().toLocalFile().endsWith(QLatin1String(".json")))
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event)
{
    const QString path = event->mimeData()->urls().first().toLocalFile();
    Leave([this, path] { Open(path); });
}

} // namespace AnimText::studio::window::shell
