#include "film/lamps.h"
#include "studio/window/basics/style.h"
#include "studio/window/basics/translating.h"
#include "studio/window/shell/exportdialog.h"
#include "studio/window/shell/mainwindow.h"

#include "photograph.h"
#include "testfolder.h"

#include <QAccessible>
#include <QClipboard>
#include <QDockWidget>
#include <QMenuBar>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QSettings>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>
#include <QToolTip>
#include <QTranslator>

using namespace AnimText;

constexpr int patience = 240000; // milliseconds; the machine may be busy

/** The real window, driven by keys and the mouse. */
class TestWindow : public QObject
{
    Q_OBJECT

private:
    TestFolder folder;
    std::unique_ptr<studio::window::shell::MainWindow> window;

    void Type(const QString& words)
    {
        QTest::keyClicks(window->GetInspector()->Text()->Editor(), words);
    }
    bool Settles()
    {
        return QTest::qWaitFor(
            [this] {
                return window->GetDocument()->Current().IsLaidOut() &&
                       window->GetRehearsal()->IsCurrent() && window->GetRehearsal()->IsMeasured();
            },
            patience);
    }
    const studio::model::SignText& Text(int index = 0) const
    {
        return window->GetDocument()->Current().texts.at(index);
    }

    /** The motions that are searched for. */
    static QList<QListWidgetItem*> Listed(studio::window::motion::MotionPicker* picker)
    {
        QList<QListWidgetItem*> items = picker->List()->findItems("", Qt::MatchContains);
        items.erase(std::remove_if(items.begin(), items.end(),
                                   [](QListWidgetItem* item) { return item->isHidden(); }),
                    items.end());
        return items;
    }

private slots:
    void init();
    void cleanup() { window.reset(); }
    void writesChoosesScrubsUndoesSaves();
    void pastes_data();
    void pastes();
    void routesKeys();
    void wheelChangesNoChoices();
    void keysMoveThroughTime();
    void removesOutdatedNotices();
    void keepsWriteProtectedFiles();
    void zoomsPansAndMeasures();
    void enlargesLeds();
    void editsTextsAndPages();
    void changesDisplaySize();
    void fitsSmallScreens();
    void mouseMovesAndSizesAreas();
    void closesWhileItPaints();
    void leavingLosesNothing();
    void speaksGerman();
    void everyWidgetHasAccessibleName();
    void fixesFindings();
    void fieldsFollowTheArea();
    void fieldsStayInPlaceAndTabIsShort();
    void recreatesOutlines();
    void reportsMissingTemporaryFolder();
    void exportsAndCancels();
    void pickerGrowsAndNamesMotions();
    void choosesNeonByPicture();
    void exportsPartsAndLeds();
    void describesTimes_data();
    void describesTimes();
    void timelineStopsZoomsAndRepeats();
    void showsCallsFaultsAndComparison();
    void holdsThreeHundredTexts();
};

void TestWindow::init()
{
    window = std::make_unique<studio::window::shell::MainWindow>(QString());
    window->New();
    window->resize(1600, 900); // independent of the screen
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get(), patience));
}

void TestWindow::writesChoosesScrubsUndoesSaves()
{
    Type("Mind the gap"); // replaces the selection
    QCOMPARE(Text().Title(), QString("Mind the gap"));
    QVERIFY(Settles());
    studio::window::motion::MotionPicker* motions = window->GetInspector()->Motions();
    QTest::keyClicks(motions->Search(), "waves");
    QCOMPARE(Listed(motions).size(), 1);
    QTest::mouseClick(motions->List()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      motions->List()->visualItemRect(Listed(motions).first()).center());
    QCOMPARE(scene::MotionOf(Text().node).number, 5);
    QVERIFY(Settles());
    QVERIFY(window->GetPlayback()->Length() > 20);
    window->GetPlayback()->Seek(11);
    QVERIFY(Settles());
    QCOMPARE(window->Display()->Picture(), window->GetRehearsal()->Picture(11));

    const QString path = folder.Path("sign.json");
    QSignalSpy ended(window->GetDocument(), &studio::model::Document::SaveEnded);
    window->GetDocument()->Save(path);
    QVERIFY(ended.wait(patience));
    QVERIFY(!window->isWindowModified());
    window->GetDocument()->Undo()->undo();
    QCOMPARE(scene::MotionOf(Text().node).number, 17);
    window->GetDocument()->Undo()->undo();
    QVERIFY(Text().Title() != "Mind the gap"); // typing was one step
    QVERIFY(!window->GetDocument()->Undo()->canUndo());
    Type("a");
    window->GetInspector()->Text()->findChildren<QToolButton*>().at(1)->click(); // bold
    window->GetDocument()->Undo()->undo();
    auto* size = window->GetInspector()->Text()->findChild<studio::window::basics::NumberField*>();
    emit size->NumberChanged(Text().source.text.runs.first().font.pixelSize(), 1);
    QVERIFY(window->GetDocument()->Undo()->canRedo()); // what changes nothing is no step
    Type("b");
    QCOMPARE(window->GetDocument()->Undo()->count(), 2); // typing goes on in a new step
    QVERIFY(window->Open(path));
    QCOMPARE(scene::MotionOf(Text().node).number, 5);
    QCOMPARE(window->GetInspector()->Text()->Editor()->toPlainText(), QString("Mind the gap"));
}

/** Pastes into "ab" with a bold, large b; [ and ] enclose the selection. */
void TestWindow::pastes_data()
{
    QTest::addColumn<QString>("selected");
    QTest::addColumn<QString>("plain");
    QTest::addColumn<QString>("html");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("bold"); // * for bold letters
    const auto row = [](const char* name, const char* selected, const char* plain, const char* html,
                        const char* key, const char* words, const char* bold) {
        QTest::newRow(name) << selected << plain << html << key << words << bold;
    };
    row("words", "a[]b", "cd", "", "Ctrl+V", "acdb", "---*");
    row("words into bold", "ab[]", "cd", "", "Ctrl+V", "abcd", "-***");
    row("tags are words", "a[]b", "<b>c</b>", "", "Ctrl+V", "a<b>c</b>b", "---------*");
    row("lines", "a[]b", "c\r\nd\n", "", "Ctrl+V", "ac db", "----*");
    row("a page's words only", "[a]b", "cd", "<b>cd</b>", "Ctrl+V", "cdb", "--*");
    row("nothing but HTML", "[ab]", "", "<b>c</b> d", "Ctrl+V", "c d", "---");
    row("a page's styles", "a[]b", "cd", "<b>c</b>d", "Ctrl+Shift+V", "acdb", "-*-*");
    row("its own styles", "a[b]", nullptr, "", "Ctrl+V", "bab", "*-*");
}

void TestWindow::pastes()
{
    QFETCH(QString, selected);
    QFETCH(QString, plain);
    QFETCH(QString, html);
    studio::model::Sign sign = window->GetDocument()->Current();
    layout::StyledText& text = sign.texts.first().source.text;
    layout::StyleRun large = text.runs.first();
    large.begin = 1;
    large.font.setBold(true);
    large.font.setPixelSize(56);
    text.text = "ab";
    text.runs.append(large);
    window->GetDocument()->Change("Text", sign);
    studio::window::text::TextEditor* editor = window->GetInspector()->Text()->Editor();
    QTextCursor cursor = editor->textCursor();
    cursor.setPosition(selected.indexOf('['));
    cursor.setPosition(selected.indexOf(']') - 1, QTextCursor::KeepAnchor);
    editor->setTextCursor(cursor);
    if (plain.isNull()) {
        QTest::keySequence(editor, QKeySequence::Cut);
        QCOMPARE(Text().source.text.text, QString("a"));
        editor->moveCursor(QTextCursor::Start);
        QTest::keySequence(editor, QKeySequence::Paste);
        editor->moveCursor(QTextCursor::End);
    } else {
        auto* data = new QMimeData;
        if (!plain.isEmpty())
            data->setText(plain);
        if (!html.isEmpty())
            data->setHtml(html);
        QApplication::clipboard()->setMimeData(data);
    }
    const int steps = window->GetDocument()->Undo()->count();
    QFETCH(QString, key);
    QTest::keySequence(window->GetInspector()->Text()->Editor(), QKeySequence(key));
    QTEST(Text().source.text.text, "words");
    QString bold;
    for (int i = 0; i < Text().source.text.text.size(); ++i) {
        const layout::StyleRun& run = Text().source.text.At(i);
        bold += QLatin1Char(run.font.bold() ? '*' : '-');
        QCOMPARE(run.font.family(), large.font.family());
        QCOMPARE(run.color, large.color);
        if (html.isEmpty() && run.font.bold())
            QCOMPARE(run.font.pixelSize(), 56);
    }
    QTEST(bold, "bold");
    QCOMPARE(window->GetDocument()->Undo()->count(), steps + 1);
}

void TestWindow::routesKeys()
{
    studio::window::text::TextEditor* editor = window->GetInspector()->Text()->Editor();
    QWidget* display = window->Display();
    window->activateWindow();
    QTRY_VERIFY(editor->hasFocus()); // a new sign is ready for typing
    Type("one two");
    editor->moveCursor(QTextCursor::Start);
    QTest::keyClick(editor, Qt::Key_Delete, Qt::ControlModifier);
    QCOMPARE(Text().source.text.text, QString("two"));
    QTest::keyClick(editor, Qt::Key_Space, Qt::ControlModifier);
    QVERIFY(window->GetPlayback()->IsPlaying());
    auto* speed = window->GetInspector()->findChild<studio::window::basics::NumberField*>();
    const QList<QPair<QWidget*, Qt::Key>> ways{
        {editor, Qt::Key_Escape},
        {speed, Qt::Key_Return},
        {speed, Qt::Key_Escape},
        {window->GetInspector()->Motions()->Search(), Qt::Key_Escape}};
    for (const auto& way : ways) {
        way.first->setFocus();
        QTest::keyClick(way.first, way.second);
        QVERIFY2(display->hasFocus(), way.first->metaObject()->className());
    }
    for (QWidget* list :
         {static_cast<QWidget*>(window->findChild<studio::window::shell::SceneList*>()), display}) {
        window->GetPlayback()->SetPace(0);
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Space);
        QVERIFY2(window->GetPlayback()->IsPlaying(), list->metaObject()->className());
    }
    const QString path = folder.Path("keys.json");
    QSignalSpy ended(window->GetDocument(), &studio::model::Document::SaveEnded);
    window->GetDocument()->Save(path);
    QVERIFY(ended.wait(patience));
    editor->setFocus();
    QMimeData file; // dropped on the text, it is opened
    file.setUrls({QUrl::fromLocalFile(path)});
    QDragEnterEvent drag({5, 5}, Qt::CopyAction, &file, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(editor->viewport(), &drag);
    QDropEvent drop({5, 5}, Qt::CopyAction, &file, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(editor->viewport(), &drop);
    QVERIFY(display->hasFocus());
    QVERIFY(Settles());
    window->GetPlayback()->Seek(9);
    QTest::keyClick(display, Qt::Key_Delete);
    QVERIFY(window->GetDocument()->Current().texts.isEmpty());
    QVERIFY(Settles()); // shows the dark sign
    QCOMPARE(editor->toPlainText(), QString());
}

void TestWindow::wheelChangesNoChoices()
{
    auto* panel = window->GetInspector();
    for (QComboBox* box : window->findChildren<QComboBox*>()) {
        panel->ensureWidgetVisible(box);
        box->setFocus();
        const int before = box->currentIndex();
        const int top = panel->verticalScrollBar()->value();
        const QPoint middle = box->rect().center();
        for (int delta : {-120, 120, 120}) {
            QWheelEvent wheel(middle, box->mapToGlobal(middle), {}, {0, delta}, Qt::NoButton,
                              Qt::NoModifier, Qt::NoScrollPhase, false);
            QSpontaneKeyEvent::setSpontaneous(&wheel); // otherwise parents do not receive it
            qApp->notify(box, &wheel);
            QCOMPARE(box->currentIndex(), before);
            if (delta < 0)
                QCOMPARE(panel->verticalScrollBar()->value() > top, panel->isAncestorOf(box));
        }
    }
}

/** Notices of an earlier state are removed. */
void TestWindow::removesOutdatedNotices()
{
    const QString path = folder.Path("stale.json");
    QSignalSpy ended(window->GetDocument(), &studio::model::Document::SaveEnded);
    window->GetDocument()->Save(path);
    QVERIFY(ended.wait(patience));
    for (int offer : {0, 1}) { // load, keep
        Type("mine");
        folder.Write("stale.json", folder.Read("stale.json") + "\n");
        window->GetDocument()->Save(path);
        QVERIFY(ended.wait(patience));
        QTRY_VERIFY_WITH_TIMEOUT(window->Notices()->Offers().size() == 3, patience);
        window->Notices()->Offers().at(offer)->click();
        QCOMPARE(window->Notices()->Text(), QString());
    }

    // The message about a failed Open() stays until it is dismissed, even when a new sign plays.
    window->Notices()->Set(studio::window::basics::NoticeBar::Recovery, "A copy");
    QVERIFY(!window->Open(folder.Path("none.json")));
    window->New();
    QVERIFY(Settles());
    QVERIFY2(window->Notices()->Text().contains("none.json"),
             qPrintable(window->Notices()->Text()));
    window->Notices()->Offers().first()->click();
    QCOMPARE(window->Notices()->Text(), QString("A copy"));

    const int length = window->GetPlayback()->Length();
    Type("longer and longer");
    QVERIFY(Settles());
    QVERIFY(window->GetPlayback()->Length() > length);
    window->GetPlayback()->Seek(window->GetPlayback()->Length() - 1);
    window->GetDocument()->Undo()->undo();
    QVERIFY(Settles());
    QVERIFY(window->GetPlayback()->Tick() < window->GetPlayback()->Length());
}

void TestWindow::zoomsPansAndMeasures()
{
    QVERIFY(Settles());
    studio::window::display::DisplayView* view = window->Display();
    auto* scroll = qobject_cast<QScrollArea*>(view->parentWidget()->parentWidget());
    QVERIFY(view->Scale() * 512 > 0.8 * scroll->viewport()->width()); // fills the view
    QVERIFY(view->Scale() * 512 <= scroll->viewport()->width());
    const QPointF place = view->ToWidget().map(QPointF(100.5, 20.5));
    const QPoint seen = view->mapToParent(place.toPoint());
    for (int i = 0; i < 4; ++i) {
        const QPointF at = view->mapFromParent(seen);
        QWheelEvent wheel(at, view->mapToGlobal(at.toPoint()), {}, {0, 120}, Qt::NoButton,
                          Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(view, &wheel);
        QVERIFY2(qAbs(view->PixelAt(view->mapFromParent(seen)).x() - 100) <= 1, "stays in place");
    }
    QVERIFY(view->Scale() >= 5);
    auto* bar = scroll->horizontalScrollBar();
    const auto drag = [&](Qt::MouseButton button, const QPoint& by) {
        const QPoint from = view->mapFromParent(QPoint(200, 100));
        QTest::mousePress(view, button, Qt::NoModifier, from);
        QMouseEvent move(QEvent::MouseMove, from + by, view->mapToGlobal(from + by), button, button,
                         Qt::NoModifier);
        QApplication::sendEvent(view, &move);
        QTest::mouseRelease(view, button, Qt::NoModifier, from + by);
    };
    int before = bar->value();
    drag(Qt::MiddleButton, {-40, 0});
    QCOMPARE(bar->value(), before + 40);
    before = bar->value();
    const QRect area(Text().node.pos, Text().node.size);
    view->setFocus();
    QTest::keyPress(view, Qt::Key_Space);
    drag(Qt::LeftButton, {-30, 0});
    QTest::keyRelease(view, Qt::Key_Space);
    QCOMPARE(bar->value(), before + 30);
    QVERIFY(!window->GetPlayback()->IsPlaying());
    QCOMPARE(QRect(Text().node.pos, Text().node.size), area);

    QTest::keyClick(view, Qt::Key_0, Qt::ControlModifier);
    const double fitted = view->Scale();
    auto* leds = window->findChild<QAction*>("leds");
    leds->setChecked(true);
    QVERIFY(view->Scale() >= film::smallestLamp); // LEDs are visible
    leds->setChecked(false);
    QCOMPARE(view->Scale(), fitted);
}

/** LEDs enlarge a large sign; a smaller one is fitted again. */
void TestWindow::enlargesLeds()
{
    const studio::window::display::DisplayView* view = window->Display();
    auto* leds = window->findChild<QAction*>("leds");
    for (const QSize& display : {QSize(2048, 64), QSize(1152, 32), QSize(64, 32)}) {
        window->New(display);
        leds->setChecked(true);
        QTRY_COMPARE_WITH_TIMEOUT(view->Picture().size(), display, patience);
        const bool isLarge = display.width() > 1000;
        QTRY_COMPARE(view->Scale() > film::smallestLamp, !isLarge);
        QVERIFY(view->Scale() >= film::smallestLamp);
    }
    leds->setChecked(false);
    QCOMPARE(view->Zoom(), 0);
}

/** Signs as "ab c": texts a and b on the first page, c on the second. */
void TestWindow::editsTextsAndPages()
{
    const auto words = [this] {
        QString all;
        int page = 0;
        for (const studio::model::SignText& text : window->GetDocument()->Current().texts) {
            all += text.page != page ? " " : "";
            page = text.page;
            all += text.Title();
        }
        return all;
    };
    studio::model::Sign sign = window->GetDocument()->Current();
    sign.texts.clear();
    for (const auto& text : QList<QPair<QString, int>>{{"a", 0}, {"b", 0}, {"c", 1}}) {
        studio::model::SignText made = studio::model::NewText({128, 32}, text.second);
        made.source.text.text = text.first;
        studio::model::AddText(&sign, made);
    }
    window->GetDocument()->Change("Sign", sign);
    QCOMPARE(words(), QString("ab c"));
    QTRY_COMPARE_WITH_TIMEOUT(window->Findings()->Count(), 1, patience); // b covers a

    auto* list = window->findChild<studio::window::shell::SceneList*>();
    const auto row = [&](const QString& title) {
        return list->findItems(title, Qt::MatchExactly | Qt::MatchRecursive).value(0);
    };
    const auto drop = [&](const QString& moved, const QString& under, bool below) {
        list->setCurrentItem(row(moved));
        const QRect rect = list->visualItemRect(row(under));
        const QMimeData data;
        QDropEvent event(QPointF(rect.left() + 4, below ? rect.bottom() : rect.top()),
                         Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        struct Opened : studio::window::shell::SceneList
        {
            using studio::window::shell::SceneList::dropEvent; // Qt calls it only during a drag
        };
        (list->*&Opened::dropEvent)(&event);
        if (event.dropAction() == Qt::MoveAction)
            delete list->currentItem(); // as Qt does
        QCoreApplication::processEvents();
        return words() + (list->currentItem() == row(moved) ? "" : ", but it is not selected");
    };
    QCOMPARE(drop("a", "b", true), QString("ba c"));
    QCOMPARE(drop("a", "c", false), QString("b ac"));
    QCOMPARE(drop("c", "Page 2 · a", false), QString("bc a"));
    QCOMPARE(drop("Page 2 · a", "Page 1 · b", false).left(4), QString("a bc"));
    QCOMPARE(drop("Page 1 · a", "c", true).left(4), QString("bc a"));
    QCOMPARE(drop("a", "b", false), QString("abc")); // empty pages are removed
    window->GetDocument()->Undo()->undo();
    QCOMPARE(words(), QString("bc a"));

    const auto choose = [&](const QString& title, const QString& what) {
        list->setCurrentItem(row(title));
        QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, {5, 5});
        QApplication::sendEvent(list->viewport(), &event);
        auto* menu = window->findChild<QMenu*>("objects");
        for (QAction* action : menu->findChildren<QAction*>()) {
            if (action->text() == what && action->isEnabled())
                action->trigger();
        }
        delete menu;
        return words();
    };
    QCOMPARE(choose("b", "Bring to front"), QString("cb a"));
    QCOMPARE(choose("b", "New page"), QString("c a b"));
    QCOMPARE(choose("Page 3 · b", "Move page up"), QString("c b a"));
    QCOMPARE(list->PageOfRow(), 1); // follows the page
    QCOMPARE(choose("Page 1 · c", "Duplicate page"), QString("c c b a"));
    QCOMPARE(list->PageOfRow(), 0);
    QVERIFY(Settles());
    window->GetPlayback()->Seek(9);
    list->setCurrentItem(row("Page 3 · b"));
    QCOMPARE(window->GetPlayback()->Tick(), 0); // a page is seen from its start
    QCOMPARE(choose("Page 1 · c", "Remove page"), QString("c b a"));
    QCOMPARE(choose("c", "Duplicate text"), QString("cc b a"));
    QCOMPARE(Text(1).node.pos, Text(0).node.pos + QPoint(128, 0)); // beside it
    list->setCurrentItem(row("a"));
    row("b")->setText(0, "Name");
    window->GetDocument()->Undo()->undo();
    QCOMPARE(window->Selected(), Text(2).id); // what has changed is seen
    window->GetDocument()->Undo()->redo();
    QCOMPARE(words(), QString("cc Name a"));
    QVERIFY(row("Page 2 · Name")); // a page has the title of its first text
    QCOMPARE(Text(2).source.text.text, QString("b"));
    QSignalSpy ended(window->GetDocument(), &studio::model::Document::SaveEnded);
    window->GetDocument()->Save(folder.Path("named.json"));
    QVERIFY(ended.wait(patience));
    QVERIFY(window->Open(folder.Path("named.json")));
    QCOMPARE(words(), QString("cc Name a"));
}

void TestWindow::changesDisplaySize()
{
    for (QAction* action : window->menuBar()->actions().first()->menu()->actions()) {
        if (action->shortcut() == QKeySequence::New)
            action->trigger();
    }
    auto* dialog = window->findChild<QDialog*>("new");
    QVERIFY(dialog);
    const auto choose = [](studio::window::display::DisplayForm* form, const char* panel) {
        form->Presets()->setCurrentText(panel);
        emit form->Presets()->activated(form->Presets()->currentIndex());
    };
    choose(dialog->findChild<studio::window::display::DisplayForm*>(), "128 × 32");
    dialog->accept();
    QCOMPARE(window->GetDocument()->Current().display, QSize(128, 32));
    QCOMPARE(Text().node.size, QSize(128, 32));
    QTest::mouseClick(window->Display(), Qt::LeftButton, Qt::NoModifier, {2, 2}); // beside it
    QCOMPARE(window->Selected(), 0);
    QVERIFY(window->GetInspector()->Display()->isVisible());
    choose(window->GetInspector()->Display(), "1920 × 128");
    QCOMPARE(Text().node.size, QSize(1920, 128)); // still fills the display
    auto* width = window->GetInspector()
                      ->Display()
                      ->findChildren<studio::window::basics::NumberField*>()
                      .first();
    width->setFocus();
    width->selectAll();
    QTest::keyClicks(width, "64\r");
    QCOMPARE(window->GetDocument()->Current().display, QSize(64, 128));
    QVERIFY(Settles());
    QCOMPARE(window->Display()->Picture().size(), QSize(64, 128));
    window->GetDocument()->Undo()->undo();
    QCOMPARE(window->GetDocument()->Current().display, QSize(1920, 128));
}

void TestWindow::fitsSmallScreens()
{
    auto* findings = window->findChild<QDockWidget*>("findings");
    auto* timeline = window->findChild<studio::window::time::Timeline*>();
    for (const QSize& size : {QSize(800, 480), QSize(1024, 600), QSize(1600, 900)}) {
        // The window is wider until its docks become tabs.
        QTRY_VERIFY((window->resize(size), window->size() == size));
        QTRY_COMPARE(window->tabifiedDockWidgets(findings).isEmpty(), size.width() > 1200);
        findings->raise();
        QTRY_VERIFY(window->Findings()->widget()->visibleRegion().boundingRect().height() > 30);
        QVERIFY(timeline->viewport()->visibleRegion().boundingRect().height() >= 60);
        QVERIFY(window->Display()->width() >= 300);
    }
}

void TestWindow::keepsWriteProtectedFiles()
{
    const QString path = folder.Path("fixed.json");
    QSignalSpy ended(window->GetDocument(), &studio::model::Document::SaveEnded);
    window->GetDocument()->Save(path);
    QVERIFY(ended.wait(patience));
    const QByteArray before = folder.Read("fixed.json");
    QFile::setPermissions(path, QFile::ReadOwner);
    Type("changed");
    window->GetDocument()->Save(path);
    QVERIFY(ended.wait(patience));
    QCOMPARE(folder.Read("fixed.json"), before);
    QVERIFY2(window->Notices()->Text().contains("write-protected"),
             qPrintable(window->Notices()->Text()));
    QCOMPARE(window->Notices()->Offers().first()->text(), QString("Save as…"));
    QVERIFY(window->isWindowModified());
}

void TestWindow::keysMoveThroughTime()
{
    QVERIFY(Settles());
    studio::window::time::Playback* time = window->GetPlayback();
    window->Display()->setFocus();
    const auto press = [&](int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(window->Display(), Qt::Key(key), modifiers);
        return time->Tick();
    };
    QCOMPARE(press(Qt::Key_Right), 1);
    QCOMPARE(press(Qt::Key_Right, Qt::ShiftModifier), 11);
    QCOMPARE(press(Qt::Key_Left), 10);
    QCOMPARE(press(Qt::Key_Left, Qt::ShiftModifier), 0);
    QCOMPARE(press(Qt::Key_Left), 0);
    const int last = press(Qt::Key_End);
    QCOMPARE(last, time->Length() - 1);
    const timing::PageTime page = window->GetRehearsal()->GetTiming().texts.first().pages.first();
    QCOMPARE(press(Qt::Key_BracketLeft), page.hold);
    QCOMPARE(press(Qt::Key_BracketLeft), 0);
    QCOMPARE(press(Qt::Key_BracketRight), page.hold);
    QCOMPARE(press(Qt::Key_Home), 0);
    press(Qt::Key_Space);
    QCOMPARE(time->Pace(), 1);
    press(Qt::Key_L);
    QCOMPARE(time->Pace(), 2);
    press(Qt::Key_J);
    QCOMPARE(time->Pace(), -1);
    press(Qt::Key_K);
    QVERIFY(!time->IsPlaying());
    // Button and key loop the same: the page with its pause.
    time->Seek(page.hold - 1);
    for (bool byKey : {true, false}) {
        const auto toggle = [&](bool key) {
            if (key)
                press(Qt::Key_R);
            else
                window->Transport()->findChildren<QToolButton*>().at(5)->click();
        };
        toggle(byKey);
        QVERIFY(time->HasLoop());
        QCOMPARE(time->LoopBegin(), page.begin);
        QCOMPARE(time->LoopEnd(), page.end - 1);
        toggle(!byKey);
        QVERIFY(!time->HasLoop());
    }
    // Playing loops over all ticks, or over the range if there is one.
    QVector<int> seen;
    connect(time, &studio::window::time::Playback::TickChanged, this,
            [&](int tick) { seen.append(tick); });
    const auto plays = [&](int from, const QVector<int>& ticks) {
        time->Seek(from);
        seen.clear();
        time->SetPace(1);
        return QTest::qWaitFor([&] { return seen.size() >= ticks.size(); }, patience) &&
               seen.mid(0, ticks.size()) == ticks;
    };
    QVERIFY(plays(last, {0, 1, 2}));
    time->SetLoop(4, 7);
    QVERIFY(plays(7, {4, 5, 6, 7, 4}));
    time->disconnect(this);
}

void TestWindow::mouseMovesAndSizesAreas()
{
    QVERIFY(Settles());
    studio::window::display::DisplayView* view = window->Display();
    const auto at = [&](int x, int y) { return view->ToWidget().map(QPointF(x, y)).toPoint(); };
    const auto drag = [&](QPoint from, QPoint to, Qt::KeyboardModifiers modifiers) {
        QTest::mousePress(view, Qt::LeftButton, Qt::NoModifier, at(from.x(), from.y()));
        for (int part = 1; part <= 4; ++part) {
            const QPoint way = from + (to - from) * part / 4;
            QMouseEvent move(QEvent::MouseMove, at(way.x(), way.y()), Qt::LeftButton,
                             Qt::LeftButton, modifiers);
            QApplication::sendEvent(view, &move);
        }
        const QSize size = Text().node.size;
        QVERIFY(
            QToolTip::text().endsWith(QString("%1 × %2 px").arg(size.width()).arg(size.height())));
        QTest::mouseRelease(view, Qt::LeftButton, Qt::NoModifier, at(to.x(), to.y()));
    };
    drag({512, 64}, {300, 40}, Qt::ControlModifier); // its lower right corner
    QCOMPARE(Text().node.size, QSize(300, 40));
    drag({100, 20}, {150, 33}, Qt::ControlModifier);
    QCOMPARE(Text().node.pos, QPoint(50, 13));
    drag({150, 33}, {102, 22}, Qt::NoModifier); // snaps to the display's corner
    QCOMPARE(Text().node.pos, QPoint(0, 0));
    QCOMPARE(window->GetDocument()->Undo()->count(), 3);
    view->setFocus();
    QTest::keyClick(view, Qt::Key_Right, Qt::AltModifier | Qt::ControlModifier);
    QTest::keyClick(view, Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier);
    QCOMPARE(Text().node.pos, QPoint(10, 0));
    QCOMPARE(Text().node.size, QSize(300, 41));
    QCOMPARE(window->GetDocument()->Undo()->count(), 5);
    for (int i = 0; i < 5; ++i) { // Alt stays pressed
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Right, Qt::AltModifier);
        QApplication::sendEvent(view, &press);
    }
    QCOMPARE(Text().node.pos, QPoint(15, 0));
    QCOMPARE(window->GetDocument()->Undo()->count(), 6);
}

/** Closes right after typing: saves, does not save, or cancels. */
void TestWindow::leavingLosesNothing()
{
    const QString path = folder.Path("left.json");
    QSignalSpy ended(window->GetDocument(), &studio::model::Document::SaveEnded);
    window->GetDocument()->Save(path);
    QVERIFY(ended.wait(patience));
    const auto offer = [&](int index) { window->Notices()->Offers().at(index)->click(); };
    Type("stays");
    window->close();
    QVERIFY(window->isVisible() && !window->Notices()->Offers().isEmpty());
    offer(2);
    QVERIFY(window->Notices()->Text().isEmpty());
    window->close();
    // Saving waits for the layout.
    QTest::keyClick(window->Notices()->Offers().first(), Qt::Key_Return);
    QTRY_VERIFY_WITH_TIMEOUT(!window->isVisible(), patience);
    QVERIFY(folder.Read("left.json").contains("stays"));

    init();
    QVERIFY(window->Open(path));
    QSignalSpy failed(window->GetDocument(), &studio::model::Document::SaveEnded);
    Type("mine");
    folder.Write("left.json", folder.Read("left.json") + "\n");
    window->close();
    offer(0);
    QVERIFY(failed.wait(patience));
    QVERIFY(!failed.first().first().toBool() &&
            window->isVisible()); // the other program's version is kept
    window->close();
    offer(1);
    QVERIFY(!window->isVisible());
    QVERIFY(folder.Read("left.json").contains("stays"));
}

/** For screen readers. */
void TestWindow::everyWidgetHasAccessibleName()
{
    studio::window::shell::ExportDialog dialog(window->GetDocument()->Current(), QString(),
                                               QString());
    window->findChild<QDockWidget*>("integrator")->show();
    QStringList nameless;
    for (const QWidget* widget :
         window->findChildren<QWidget*>() + dialog.findChildren<QWidget*>()) {
        const bool isPart = qobject_cast<QAbstractSpinBox*>(widget->parentWidget()) ||
                            widget->parent()->inherits("QComboBox") ||
                            widget->parent()->inherits("QComboBoxPrivateContainer") ||
                            QString(widget->metaObject()->className()).startsWith("QDockWidget") ||
                            widget->objectName().startsWith("qt_");
        if (isPart || !(widget->focusPolicy() & Qt::TabFocus))
            continue;
        const QAccessibleInterface* told =
            QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
        if (!told || told->text(QAccessible::Name).isEmpty())
            nameless.append(QString("%1 in %2")
                                .arg(widget->metaObject()->className(),
                                     widget->parent()->metaObject()->className()));
    }
    QVERIFY2(nameless.isEmpty(), qPrintable(nameless.join(", ")));
}

void TestWindow::speaksGerman()
{
    window.reset();
    studio::window::basics::Translate(QLocale("de_AT"));
    init();
    QCOMPARE(window->menuBar()->actions().first()->text(), QString("&Datei"));
    QCOMPARE(Text().Title(), QString("Ihr Text"));
    const QString motion = window->GetInspector()
                               ->Motions()
                               ->List()
                               ->model()
                               ->index(4, 0)
                               .data(Qt::ToolTipRole)
                               .toString();
    QVERIFY2(motion.contains("wie getippt"), qPrintable(motion));
    const auto finds = [this](const QString& words) {
        studio::window::motion::MotionPicker* picker = window->GetInspector()->Motions();
        picker->Search()->setText(words);
        return Listed(picker).first()->text();
    };
    QCOMPARE(finds("lauftext"), QString("Nach links laufen"));
    QCOMPARE(finds("ticker"), QString("Nach links laufen"));
    window.reset();
    qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator*>());
}

void TestWindow::fixesFindings()
{
    studio::model::Sign sign = window->GetDocument()->Current();
    studio::model::SignText& text = sign.texts.first();
    text.node.pos = QPoint(100, -8);
    text.node.attributes["AnimationSpeed"] = 12;
    text.node.attributes["PlayTimes"] = 0;
    text.node.attributes["Stroke"] = 1;
    text.source.text.runs.first().font.setPixelSize(56); // a line of 66 pixels, its ink in 64
    window->GetDocument()->Change("Settings", sign);
    studio::window::findings::FindingsList* list = window->Findings();
    QTRY_VERIFY_WITH_TIMEOUT(list->Count() >= 4, patience);
    sign.texts.first().node.attributes["AnimationSpeed"] = 13;
    window->GetDocument()->Change("Speed", sign);
    const auto saysSo = [&] {
        const QList<QLabel*> labels = list->findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(),
                           [](QLabel* label) { return label->toolTip().contains("13"); });
    };
    QTRY_VERIFY_WITH_TIMEOUT(saysSo(), patience);
    for (int steps = 0; list->Count() > 0 && steps < 8; ++steps) {
        const int before = list->Count();
        list->ApplyFix(0);
        QTRY_VERIFY_WITH_TIMEOUT(list->Count() < before, patience);
    }
    QCOMPARE(list->Count(), 0);
    QCOMPARE(Text().node.pos, QPoint(0, 0));
    QCOMPARE(Text().node.attributes.value("AnimationSpeed").toInt(), 9);
    QVERIFY(!Text().node.attributes.contains("Stroke"));
    QVERIFY(Text().source.fit == layout::Fit::None);
}

void TestWindow::fieldsFollowTheArea()
{
    studio::model::Sign sign = window->GetDocument()->Current();
    sign.texts.first().node.size = QSize(512, 8); // has no room for the padding of the next
    window->GetDocument()->Change("Low", sign);
    sign.texts.first().node.size = QSize(512, 64);
    sign.texts.first().source.padding = 20;
    window->GetDocument()->Change("High", sign);
    const auto field = [this](const QString& name) {
        for (auto* number :
             window->GetInspector()->findChildren<studio::window::basics::NumberField*>()) {
            if (number->accessibleName() == name)
                return number;
        }
        return static_cast<studio::window::basics::NumberField*>(nullptr);
    };
    QCOMPARE(field("Padding")->Number(), 20);
    QCOMPARE(window->GetDocument()->Undo()->count(), 2);

    auto* x = field("Left");
    auto* line = x->findChild<QLineEdit*>();
    QTest::mousePress(line, Qt::LeftButton, Qt::NoModifier, QPoint(9, 9));
    for (int way : {12, 18, 30}) {
        QMouseEvent move(QEvent::MouseMove, QPoint(9 + way, 9),
                         line->mapToGlobal(QPoint(9 + way, 9)), Qt::LeftButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(line, &move);
    }
    QTest::mouseRelease(line, Qt::LeftButton, Qt::NoModifier, QPoint(39, 9));
    QCOMPARE(Text().node.pos.x(), 10);
    QCOMPARE(window->GetDocument()->Undo()->count(), 3);
    QTest::keySequence(x, QKeySequence::Undo); // in the field as everywhere
    QCOMPARE(Text().node.pos.x(), 0);
}

void TestWindow::fieldsStayInPlaceAndTabIsShort()
{
    studio::window::text::TextEditor* editor = window->GetInspector()->Text()->Editor();
    window->activateWindow();
    QTRY_VERIFY(editor->hasFocus());
    QTest::keyClick(editor, Qt::Key_Tab);
    QVERIFY(window->Display()->hasFocus());
    QTest::keyClick(window->Display(), Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(editor->hasFocus());
    // Scroll speed does not apply to an entrance effect.
    const QList<studio::window::basics::NumberField*> numbers =
        window->GetInspector()->findChildren<studio::window::basics::NumberField*>();
    int quiet = 0;
    for (const studio::window::basics::NumberField* number : numbers)
        quiet += number->isVisible() && !(number->focusPolicy() & Qt::TabFocus) ? 1 : 0;
    QVERIFY(quiet > 0 && quiet < numbers.size());

    const auto places = [&] {
        const QWidget* motions = window->GetInspector()->Motions();
        return QList<QPoint>{window->Display()->mapTo(window.get(), QPoint()),
                             motions->mapTo(window.get(), QPoint())};
    };
    QVERIFY(Settles());
    const QList<QPoint> before = places();
    window->Notices()->Set(studio::window::basics::NoticeBar::Save, "Something happened",
                           {{"Dismiss", {}}});
    editor->insertPlainText(QString::fromUtf8("\xF3\xBF\xBF\x80"));
    QVERIFY(Settles());
    QCoreApplication::processEvents();
    QVERIFY(window->Notices()->isVisible());
    QCOMPARE(places(), before);
    window->Notices()->Offers().first()->click();
    QVERIFY(!window->Notices()->isVisible());

    window->menuBar()->actions().last()->menu()->actions().first()->trigger();
    auto* keys = window->findChild<QDialog*>("keys")->findChild<QTreeWidget*>();
    for (const char* key : {"Space", "Ctrl+S", "Ctrl+Shift+V", "Alt+arrows"})
        QVERIFY2(!keys->findItems(key, Qt::MatchExactly | Qt::MatchRecursive).isEmpty(), key);
}

void TestWindow::recreatesOutlines()
{
    studio::window::text::TextEditor* editor = window->GetInspector()->Text()->Editor();
    editor->insertPlainText(QString::fromUtf8("a\xF3\xBF\xBF\x80")); // no font has U+FFFC0
    QVERIFY(Settles());
    const QList<QLabel*> notes = window->GetInspector()->Text()->findChildren<QLabel*>();
    QVERIFY(std::any_of(notes.begin(), notes.end(),
                        [](QLabel* note) { return note->text().contains("(U+FFFC0)"); }));
    editor->selectAll();
    Type("again");
    studio::window::findings::FindingsList* list = window->Findings();
    QTRY_COMPARE_WITH_TIMEOUT(list->Count(), 0, patience); // none is left of the first text
    QSignalSpy ended(window->GetDocument(), &studio::model::Document::SaveEnded);
    window->GetDocument()->Save(folder.Path("again.json"));
    QVERIFY(ended.wait(patience));
    for (const QString& name :
         folder.Listing().filter(QRegularExpression("^again.*(path|descent)$")))
        folder.Remove(name);
    QVERIFY(window->Open(folder.Path("again.json")));
    QTRY_VERIFY_WITH_TIMEOUT(list->Count() > 0, patience);
    list->ApplyFix(0);
    QTRY_COMPARE_WITH_TIMEOUT(list->Count(), 0, patience);
    QVERIFY(Settles());
    QVERIFY(!Text().layout->data.value("PathData").isEmpty());
}

void TestWindow::reportsMissingTemporaryFolder()
{
    QVERIFY(Settles());
    const QByteArray usual = qgetenv("TMPDIR");
    qputenv("TMPDIR", "/proc");
    const studio::model::Sign sign = window->GetDocument()->Current();
    window = std::make_unique<studio::window::shell::MainWindow>(QString());
    studio::window::shell::ExportDialog dialog(sign, QString(), QString());
    if (usual.isEmpty())
        qunsetenv("TMPDIR");
    else
        qputenv("TMPDIR", usual);
    window->New();
    window->show();
    QTRY_VERIFY_WITH_TIMEOUT(window->Notices()->Text().contains("/proc:"), patience);
    QVERIFY(window->Notices()->isVisible());
    QSignalSpy done(&dialog, &studio::window::shell::ExportDialog::Done);
    dialog.SetOutput(folder.Path("none.gif"));
    dialog.StartButton()->click();
    QVERIFY(done.value(0).value(0) == false);

    // An update may have removed the program that runs.
    const QString program = studio::worker::WorkerLink::Program();
    studio::worker::WorkerLink::SetProgram(folder.Path("nothing"));
    init();
    QTRY_COMPARE_WITH_TIMEOUT(window->Notices()->Text(),
                              QString("The playback process ended unexpectedly."), patience);
    studio::worker::WorkerLink::SetProgram(program);
    Type("there again");
    QVERIFY(Settles());
    QCOMPARE(window->Notices()->Text(), QString());
}

void TestWindow::exportsAndCancels()
{
    Type("Film");
    QVERIFY(Settles());
    QSignalSpy ended(window->GetDocument(), &studio::model::Document::SaveEnded);
    window->GetDocument()->Save(folder.Path("it's.json"));
    QVERIFY(ended.wait(patience));
    for (const char* name : {"film.gif", "frames/"}) {
        studio::window::shell::ExportDialog dialog(window->GetDocument()->Current(),
                                                   folder.Path("it's.json"), QString());
        QSignalSpy done(&dialog, &studio::window::shell::ExportDialog::Done);
        dialog.SetOutput(folder.Path(name) + (QString(name).endsWith('/') ? "/" : ""));
        dialog.StartButton()->click();
        QVERIFY(done.wait(patience));
        QVERIFY(done.first().first().toBool());
        // The command makes the same film.
        const QByteArray made =
            folder.Read(name == QString("film.gif") ? "film.gif" : "frames/frame-0010.png");
        QVERIFY(!made.isEmpty());
        QCOMPARE(folder.Shell("rm -rf film.gif frames; " + dialog.Command()).status, 0);
        QCOMPARE(folder.Read(name == QString("film.gif") ? "film.gif" : "frames/frame-0010.png"),
                 made);
    }
    folder.Write("film.gif", "another's");
    studio::window::shell::ExportDialog again(window->GetDocument()->Current(), QString(),
                                              QString());
    QSignalSpy replaced(&again, &studio::window::shell::ExportDialog::Done);
    again.SetOutput(folder.Path("film.gif"));
    again.StartButton()->click();
    QVERIFY(again.StartButton()->isEnabled()); // asks before replacing
    QCOMPARE(folder.Read("film.gif"), QByteArray("another's"));
    again.StartButton()->click();
    QVERIFY(replaced.wait(patience));
    QVERIFY(folder.Read("film.gif").startsWith("GIF"));
    studio::model::Sign endless = window->GetDocument()->Current();
    endless.texts.first().node.attributes["PlayTimes"] = 400;
    studio::window::shell::ExportDialog dialog(endless, QString(), QString());
    QSignalSpy done(&dialog, &studio::window::shell::ExportDialog::Done);
    dialog.SetOutput(folder.Path("never.mp4"));
    dialog.StartButton()->click();
    QTRY_VERIFY_WITH_TIMEOUT(!dialog.StartButton()->isEnabled(), patience);
    dialog.CloseButton()->click();
    QVERIFY(done.wait(patience));
    QVERIFY(!done.first().first().toBool());
    QVERIFY(folder.Everything().filter("never").isEmpty());
    dialog.SetOutput(folder.Path("nothing.txt"));
    QVERIFY(!dialog.StartButton()->isEnabled());
}

void TestWindow::pickerGrowsAndNamesMotions()
{
    studio::window::motion::MotionPicker* picker = window->GetInspector()->Motions();
    const int before = picker->List()->height();
    window->resize(1600, 1300);
    QTRY_VERIFY(picker->List()->height() > before * 5 / 4);
    QSet<QString> names;
    for (int row = 0; row < picker->List()->model()->rowCount(); ++row) {
        const QModelIndex index = picker->List()->model()->index(row, 0);
        names.insert(index.data().toString());
        QVERIFY(picker->List()->visualRect(index).width() >=
                picker->List()->fontMetrics().horizontalAdvance(index.data().toString()));
    }
    QCOMPARE(names.size(), 34);
    window->activateWindow();
    QTRY_VERIFY(window->isActiveWindow());
    QTest::keyClicks(picker->Search(), "waves");
    QTest::keyClick(picker->Search(), Qt::Key_Down);
    QCOMPARE(scene::MotionOf(Text().node).number, 5);
    QMouseEvent drag(QEvent::MouseMove, QPointF(), picker->List()->mapToGlobal(QPoint(0, 333)),
                     Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(picker->findChild<QLabel*>(), &drag);
    window->resize(1600, 900);
    QTRY_COMPARE(picker->List()->height(), 333);
    studio::window::motion::Thumbnails thumbnails{QString()};
    QCOMPARE(studio::window::motion::MotionPicker(&thumbnails).List()->maximumHeight(),
             333); // the next start too
    QSettings().clear();
}

void TestWindow::choosesNeonByPicture()
{
    QComboBox* box = nullptr;
    for (auto* any : window->GetInspector()->findChildren<QComboBox*>()) {
        if (any->accessibleName() == "Neon style")
            box = any;
    }
    window->GetInspector()->ensureWidgetVisible(box);
    box->showPopup();
    QAbstractItemView* list = box->view();
    const auto icon = [box](int row) {
        return box->itemIcon(row).pixmap(studio::window::motion::thumbnailSize).toImage();
    };
    for (int row : {0, 4, 12}) { // styles repeat every eight numbers
        list->scrollTo(box->model()->index(row, 0));
        QTRY_VERIFY_WITH_TIMEOUT(!icon(row).isNull(), patience);
        QCOMPARE(icon(row).size(), studio::window::motion::thumbnailSize);
    }
    list->scrollTo(box->model()->index(0, 0)); // both move: at times they look alike
    const QRect border(0, 0, studio::window::motion::thumbnailSize.width(), 2);
    QTRY_VERIFY_WITH_TIMEOUT(icon(0).copy(border) != icon(4).copy(border), patience);
    box->hidePopup();
    box->setFocus();
    QTest::keyClick(box, Qt::Key_End);
    QCOMPARE(Text().node.neonEffect, 29);
    QTest::keyClick(box, Qt::Key_Up);
    QCOMPARE(Text().node.neonEffect, 28);
    for (int style : {0, 1, 28, 29, 40}) {
        studio::model::Sign sign = window->GetDocument()->Current();
        sign.texts.first().node.neonEffect = style;
        window->GetDocument()->Change("Neon", sign);
        QCOMPARE(box->currentIndex(), qBound(0, style - 1, 28));
        QCOMPARE(box->currentData().toInt(), qMax(1, style));
    }
}

void TestWindow::exportsPartsAndLeds()
{
    Type("Film");
    QVERIFY(Settles());
    window->GetPlayback()->Seek(30);
    QVERIFY(Settles());
    studio::window::shell::ExportView view;
    view.playback = window->GetPlayback();
    window->GetPlayback()->SetLoop(28, 32);
    const auto exports = [&](int extent, bool lamps, const char* name) {
        studio::window::shell::ExportDialog dialog(window->GetDocument()->Current(), QString(),
                                                   QString(), view);
        QSignalSpy done(&dialog, &studio::window::shell::ExportDialog::Done);
        dialog.SetOutput(folder.Path(name));
        dialog.Extent()->setCurrentIndex(extent);
        emit dialog.Extent()->activated(extent);
        dialog.Lamps()->setChecked(lamps);
        dialog.StartButton()->click();
        if (!done.wait(patience) || !done.first().first().toBool())
            return dialog.State();
        if (!dialog.State().contains("Show in folder"))
            return dialog.State();
        return dialog.Forecast();
    };
    const auto on = [](const QImage& picture) { // black
        QImage whole(picture.size(), QImage::Format_RGB32);
        whole.fill(Qt::black);
        QPainter(&whole).drawImage(0, 0, picture);
        return whole;
    };
    QCOMPARE(exports(2, false, "one.png"), QString("512 × 64 px"));
    const QImage seen = on(window->Display()->Picture());
    QCOMPARE(on(QImage(folder.Path("one.png"))), seen);
    QCOMPARE(exports(2, true, "lamps.png"), QString("2048 × 256 px"));
    QCOMPARE(on(QImage(folder.Path("lamps.png"))), film::AsLamps(seen, 4, 1.5));
    QCOMPARE(exports(1, false, "part/"), QString("512 × 64 px · 0.33 s"));
    QCOMPARE(QDir(folder.Path("part")).entryList(QDir::Files).size(), 5);
    QCOMPARE(on(QImage(folder.Path("part/frame-0030.png"))), seen);
}

void TestWindow::describesTimes_data()
{
    QTest::addColumn<int>("planned");
    QTest::addColumn<int>("actual");
    QTest::addColumn<int>("lastPage"); // its first tick
    QTest::addColumn<QString>("words");
    QTest::newRow("as planned") << 6600 << 6600 << 50 << "planned 6.60 s · needs 6.60 s";
    QTest::newRow("a tick too long") << 6600 << 6731 << 50 << "planned 6.60 s · needs 6.73 s";
    QTest::newRow("two ticks") << 6600 << 6732 << 50
                               << "planned 6.60 s · needs 6.73 s · 0.13 s lost";
    QTest::newRow("a page") << 6600 << 9900 << 100 << "planned 6.60 s · needs 9.90 s · 1 page lost";
    QTest::newRow("shorter") << 6600 << 3300 << 20
                             << "planned 6.60 s · needs 3.30 s · stays 3.30 s longer";
}

void TestWindow::describesTimes()
{
    QFETCH(int, planned);
    QFETCH(int, actual);
    QFETCH(int, lastPage);
    studio::window::basics::Translate(QLocale("en"));
    studio::worker::TextTime text;
    text.ending = timing::Ending::Finishes;
    text.planned = planned;
    text.actual = actual;
    text.pages = {{0, 5, lastPage}, {lastPage, lastPage + 5, lastPage + 9}};
    QTEST(studio::window::time::EndsInWords(text), "words");
    studio::window::time::TransportBar bar(window->GetPlayback());
    bar.ShowEnds(&text, QString());
    const QColor color = bar.findChildren<QLabel*>().at(1)->palette().color(QPalette::WindowText);
    QCOMPARE(color == studio::window::basics::Warning(bar.palette()), lastPage == 100);
    qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator*>());
}

void TestWindow::timelineStopsZoomsAndRepeats()
{
    studio::model::Sign sign = window->GetDocument()->Current();
    sign.texts.first().node.attributes["PlayTimes"] = 3;
    window->GetDocument()->Change("Repeats", sign);
    QVERIFY(Settles());
    auto* timeline = window->findChild<studio::window::time::Timeline*>();
    const QImage repeats = timeline->grab().toImage();
    const studio::worker::Timing timing = window->GetRehearsal()->GetTiming();
    timeline->SetRows({{Text().id, Text().Title(), 1, timing.texts.first()}}, timing.Ticks());
    QVERIFY(timeline->grab().toImage() != repeats); // three pages look different
    window->GetPlayback()->SetPace(1);
    const QPoint at(int(timeline->XOf(20.5)), 10);
    QTest::mousePress(timeline->viewport(), Qt::LeftButton, Qt::NoModifier, at);
    QVERIFY(!window->GetPlayback()->IsPlaying());
    QCOMPARE(window->GetPlayback()->Tick(), 20);
    QTest::mouseRelease(timeline->viewport(), Qt::LeftButton, Qt::NoModifier, at);
    const double width = timeline->XOf(21) - timeline->XOf(20);
    timeline->SetZoom(4, at.x());
    QCOMPARE(timeline->TickAt(at.x()), 20); // stays under the mouse
    QVERIFY(qAbs((timeline->XOf(21) - timeline->XOf(20)) / width - 4) < 0.01);
    sign.texts.first().node.attributes["PlayTimes"] = 99999; // with its page and all pages
    window->Transport()->findChild<QComboBox*>()->setCurrentIndex(1);
    window->GetDocument()->Change("Endless", sign);
    QVERIFY(Settles());
    const QString ends = window->Transport()->findChildren<QLabel*>().at(1)->toolTip();
    QVERIFY2(ends.count("too long to measure") == 3, qPrintable(ends));
}

void TestWindow::showsCallsFaultsAndComparison()
{
    window->findChild<QDockWidget*>("integrator")->show();
    studio::window::form::IntegratorView* view = window->Integrator();
    QTRY_VERIFY_WITH_TIMEOUT(view->CallsText().contains("CreatePictureSession"), patience);
    QVERIFY(Settles());
    view->AddFault(Torv::OpCreatePictureSession, 1);
    QTRY_VERIFY_WITH_TIMEOUT(view->CallsText().contains("fault"), patience);
    // Compared with itself, the library differs only by the injected fault.
    view->SetLibrary(ANIMTEXT_PROGRAMS "/../lib/libanimationtext.so");
    window->GetPlayback()->Seek(40);
    QTRY_VERIFY_WITH_TIMEOUT(view->findChildren<QLabel*>().last()->text().contains("No pixel"),
                             10000);
    view->SetLibrary(QString());
}

void TestWindow::holdsThreeHundredTexts()
{
    studio::model::Sign sign;
    sign.display = QSize(512, 512);
    for (int i = 0; i < 300; ++i) {
        studio::model::SignText text = studio::model::NewText(QSize(100, 16), 0);
        text.node.pos = QPoint(100 * (i % 5), 8 * (i / 5));
        text.source.text.text = QString("Text %1").arg(i);
        studio::model::AddText(&sign, text);
    }
    window->GetDocument()->Change("Many", sign);
    QVERIFY(QTest::qWaitFor(
        [this] {
            return window->GetRehearsal()->IsCurrent() &&
                   window->GetDocument()->Current().IsLaidOut();
        },
        patience));
    window->Select(window->GetDocument()->Current().texts.at(299).id);
    QCOMPARE(window->GetInspector()->Text()->Editor()->toPlainText(), QString("Text 299"));
    QSignalSpy ended(window->GetDocument(), &studio::model::Document::SaveEnded);
    window->GetDocument()->Save(folder.Path("many.json"));
    QVERIFY(ended.wait(patience));
    QVERIFY(window->Open(folder.Path("many.json")));
    QCOMPARE(window->GetDocument()->Current().texts.size(), 300);
    QVERIFY(Settles());
}

void TestWindow::closesWhileItPaints()
{
    for (int round = 0; round < 3; ++round) {
        Type(QString("Closing %1").arg(round));
        window->GetPlayback()->SetPace(1);
        QTRY_VERIFY_WITH_TIMEOUT(window->GetRehearsal()->IsCurrent() || round > 0, patience);
        window = std::make_unique<studio::window::shell::MainWindow>(
            QString()); // destroys the old one while it works
        window->New();
    }
}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName("animtext-studio-test");
    const TestFolder settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.Path("settings"));
    studio::worker::WorkerLink::SetProgram(ANIMTEXT_PROGRAMS "/animtext-studio");
    const QStringList words = QCoreApplication::arguments();
    if (words.value(1) == "--photograph")
        return Photograph(words.mid(2));
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi); // as QTEST_MAIN does
    TestWindow test;
    return QTest::qExec(&test, words);
}

#include "tst_window.moc"
