/**
 * @file
 * The studio's window.
 */
#pragma once

#include "studio/model/document.h"
#include "studio/model/recovery.h"
#include "studio/window/basics/noticebar.h"
#include "studio/window/basics/style.h"
#include "studio/window/display/displayview.h"
#include "studio/window/findings/findingslist.h"
#include "studio/window/form/inspector.h"
#include "studio/window/form/integratorview.h"
#include "studio/window/motion/thumbnails.h"
#include "studio/window/shell/scenelist.h"
#include "studio/window/time/playback.h"
#include "studio/window/time/timeline.h"
#include "studio/window/time/transportbar.h"
#include "studio/worker/rehearsal.h"

#include <QComboBox>
#include <QDockWidget>
#include <QMainWindow>
#include <QScrollArea>
#include <QSplitter>
#include <QToolBar>

namespace AnimText::studio::window::shell {

class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /** @param plugin the plugin library; empty for the one beside the program */
    explicit MainWindow(const QString& plugin);
    ~MainWindow() override;

    /** Opens the scene @p path; on failure shows a notice. */
    bool Open(const QString& path);
    void New(const QSize& display = model::Sign().display, bool alphaBlend = true);

    model::Document* GetDocument() { return &document; }
    worker::Rehearsal* GetRehearsal() { return &rehearsal; }
    time::Playback* GetPlayback() { return &playback; }
    display::DisplayView* Display() const { return view; }
    form::Inspector* GetInspector() const { return inspector; }
    time::TransportBar* Transport() const { return transport; }
    basics::NoticeBar* Notices() const { return notices; }
    findings::FindingsList* Findings() const { return findings; }
    /** Hidden until the user opens it. */
    form::IntegratorView* Integrator() const { return integrator; }
    /** Offers to restore the unsaved work of a studio that was killed. */
    void OfferLostWork();
    int Selected() const { return selected; }
    void Select(int id);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void MakePanes();
    void MakeFileMenu();
    void MakeEditMenu();
    void MakeViewMenu();
    void MakePlayMenu();
    void MakeHelpMenu();
    /** What a menu shows of an action. */
    struct Entry
    {
        QString words;
        QKeySequence key{};
        const char* icon = nullptr;
    };
    QAction* Act(QMenu* menu, const Entry& entry, const std::function<void()>& act);
    void Connect();
    void Arrange();

    void Refresh();
    void Rehearse();
    void ShowTiming();
    void ShowState();
    void CompareWith(const QString& library);
    void ShowCalls();
    void Change(const QString& what, const std::function<void(model::Sign*)>& change,
                const QString& merge = QString());
    void Edit(const QString& what, const QString& merge, const model::TextChange& change);
    void AddNewText(bool onNewPage);
    void RemoveSelected();
    void DuplicateSelected();
    void ChooseNew();
    /** @return false if the user has canceled */
    bool Save(bool elsewhere = false);
    void Leave(const std::function<void()>& then);
    void ShowExport();
    QDialog* MakeDialog(const QString& name, const QString& title);
    void ShowKeys();
    void AddRecent(const QString& path);
    void SetZoom(int zoom);
    void ZoomBy(int steps, const QPointF& about);
    void ToggleLoop();
    void EditWords(const char* slot);
    /** The texts of @p page; negative for all pages. */
    QList<model::SignText> TextsOf(int page) const;
    void Rename(int id, const QString& name);
    void PutText(int id, int page, int place);
    void PutPage(int page, int to);
    void ShowObjectMenu(const QPoint& global);
    int CurrentPage() const;
    void SelectOnPage(int page, int id);

    const QString plugin;
    model::Document document;
    model::Recovery recovery;
    worker::Rehearsal rehearsal;
    std::unique_ptr<worker::Rehearsal> compared; // plays with another library
    motion::Thumbnails thumbnails;
    time::Playback playback;
    int selected = 0;  // id of a text; 0 for the display
    int shownPage = 0; // while no text is selected
    worker::Part part;
    QTimer dimming;
    std::function<void()> afterSave; // runs when the sign is saved
    bool mayClose = false;
    QByteArray wideDocks; // their places in a wide window, while this one is narrow
    int zoom = 0;         // as chosen; 0 fits the window
    double pitch = 1.5;   // from LED to LED in LED diameters

    // In the order of Tab.
    QSplitter* center = new QSplitter(Qt::Vertical, this);
    display::DisplayView* view = new display::DisplayView(this);
    QScrollArea* scroll = new QScrollArea(this); // contains the view
    time::TransportBar* transport = new time::TransportBar(&playback, this);
    time::Timeline* timeline = new time::Timeline(&playback, this);
    basics::NoticeBar* notices = new basics::NoticeBar(scroll);
    SceneList* scenes = new SceneList(this);
    QBoxLayout* sceneTools = basics::Arrange(Qt::Horizontal, basics::grid, {}, basics::grid);
    form::Inspector* inspector = new form::Inspector(&thumbnails, this);
    findings::FindingsList* findings = new findings::FindingsList(this);
    form::IntegratorView* integrator = new form::IntegratorView(this);
    QDockWidget* sceneDock = new QDockWidget(tr("Scene"), this);
    QDockWidget* textDock = new QDockWidget(tr("Text"), this);
    QDockWidget* findingsDock = new QDockWidget(tr("Problems"), this);
    QDockWidget* integratorDock = new QDockWidget(tr("Integrator"), this);
    QToolBar* tools = addToolBar(tr("Tools"));
    QComboBox* zoomBox = nullptr;
    QAction* leds = nullptr;
    QAction* saveAction = nullptr;
    QAction* exportAction = nullptr;
    QHash<QKeySequence, QAction*> playKeys;
};

} // namespace AnimText::studio::window::shell
