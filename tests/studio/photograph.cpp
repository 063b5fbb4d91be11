#include "photograph.h"

#include "studio/window/basics/translating.h"
#include "studio/window/display/ledsdialog.h"
#include "studio/window/shell/mainwindow.h"

#include <QApplication>
#include <QDir>
#include <QStyleFactory>
#include <QTest>

#include <cstdio>

using namespace AnimText;

namespace {

constexpr int patience = 120000; // milliseconds
const QColor orange(255, 160, 0);

QPalette Dark()
{
    QPalette palette(QColor(45, 47, 50));
    palette.setColor(QPalette::Base, QColor(30, 31, 33));
    palette.setColor(QPalette::AlternateBase, QColor(38, 40, 42));
    palette.setColor(QPalette::Highlight, QColor(53, 132, 228));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, QColor(64, 66, 70));
    palette.setColor(QPalette::ToolTipText, Qt::white);
    return palette;
}

/** A text in @p area with a font of @p size pixels, a motion and its speed. */
studio::model::SignText Text(const QString& words, const QRect& area, int size, bool scroll,
                             int motion, int speed)
{
    studio::model::SignText text = studio::model::NewText(area.size(), 0);
    layout::StyleRun run = text.source.text.runs.first();
    run.font.setPixelSize(size);
    run.color = orange;
    text.source.text = layout::StyledText();
    text.source.text.Append(words, run);
    text.node.pos = area.topLeft();
    scene::SetMotion(&text.node, {scroll ? scene::Mode::Scroll : scene::Mode::Entrance, motion});
    text.node.attributes[scene::MotionOf(text.node).SpeedKey()] = speed;
    text.layoutKey = studio::model::LayoutKey(text);
    return text;
}

studio::model::Sign SignOf(const QSize& display, const QList<studio::model::SignText>& texts)
{
    studio::model::Sign sign;
    sign.display = display;
    for (const studio::model::SignText& text : texts)
        studio::model::AddText(&sign, text);
    return sign;
}

studio::model::Sign Platform()
{
    studio::model::SignText where =
        Text(QStringLiteral("Platform 4"), {0, 0, 336, 96}, 56, false, 5, 6);
    studio::model::SignText when =
        Text(QStringLiteral("Zürich 14:05"), {336, 0, 176, 48}, 26, false, 17, 7);
    const layout::StyleRun plain = where.source.text.runs.first();
    layout::StyleRun bold = plain;
    bold.font.setBold(true);
    bold.color = Qt::white; // the sign ignores it
    where.source.text = layout::StyledText();
    where.source.text.Append(QStringLiteral("Platform "), plain);
    where.source.text.Append(QStringLiteral("4"), bold);
    where.layoutKey = studio::model::LayoutKey(where);
    studio::model::SignText next =
        Text(QStringLiteral("Mind the gap"), {0, 0, 512, 96}, 64, false, 4, 5);
    next.page = 1;
    return SignOf({512, 96}, {where, when,
                              Text(QStringLiteral("calling at Thalwil, Zug and Luzern"),
                                   {336, 48, 176, 48}, 26, true, 0, 4),
                              next});
}

class Photographer
{
public:
    explicit Photographer(const QString& folder)
        : folder(folder)
    {
        window.resize(1680, 900);
        window.New();
        window.show();
    }

    /** Selects text @p index of @p sign and goes to @p tick. */
    bool Show(const studio::model::Sign& sign, int index, int tick)
    {
        window.GetDocument()->Change(QStringLiteral("Sign"), sign);
        window.Select(window.GetDocument()->Current().texts.at(index).id);
        studio::worker::Rehearsal* rehearsal = window.GetRehearsal();
        const auto isShown = [&] {
            return window.GetDocument()->Current().IsLaidOut() && rehearsal->IsCurrent() &&
                   rehearsal->IsMeasured();
        };
        if (!QTest::qWaitFor(isShown, patience))
            return false;
        window.GetPlayback()->Seek(tick);
        return QTest::qWaitFor([&] { return isShown() && AreMotionsThere(); }, patience);
    }

    bool Photograph(const QString& name)
    {
        window.GetDocument()->Undo()->clear();
        QCoreApplication::processEvents();
        const bool saved = window.grab().save(folder.filePath(name));
        std::printf("%s\n", qPrintable(folder.filePath(name)));
        return saved;
    }

    studio::window::shell::MainWindow window{QString()};

private:
    bool AreMotionsThere() const
    {
        const QListView* list = window.GetInspector()->Motions()->List();
        for (int row = 0; row < list->model()->rowCount(); ++row) {
            const QModelIndex index = list->model()->index(row, 0);
            if (list->viewport()->rect().intersects(list->visualRect(index)) &&
                !index.data(studio::window::motion::currentRole).toBool())
                return false;
        }
        return true;
    }

    QDir folder;
};

} // namespace

int Photograph(const QStringList& words)
{
    const QString folder = words.value(0), look = words.value(1);
    const bool dark = look == QLatin1String("--dark");
    const bool german = look == QLatin1String("--german");
    if (folder.isEmpty() || words.size() > 2 || (words.size() == 2 && !dark && !german)) {
        std::fputs("tst_window --photograph FOLDER [--dark | --german]\n", stderr);
        return 2;
    }
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
    if (dark)
        QApplication::setPalette(Dark());

    studio::model::SignText thrice =
        Text(QStringLiteral("Gleis 7"), {0, 0, 320, 64}, 52, false, 4, 5);
    thrice.node.hold = 5;
    thrice.node.attributes[QStringLiteral("PlayTimes")] = 3;
    studio::window::basics::Translate(QLocale(german ? QLocale::German : QLocale::English));
    Photographer photographer(folder);
    bool all = photographer.Show(Platform(), 0, 22) &&
               photographer.Photograph(QStringLiteral("studio.png"));
    all = all &&
          photographer.Show(SignOf({512, 64}, {thrice, Text(QStringLiteral("Zürich"),
                                                            {320, 0, 192, 64}, 44, false, 17, 6)}),
                            0, 70) &&
          photographer.Photograph(QStringLiteral("studio-timeline.png"));
    auto* leds = photographer.window.findChild<QAction*>(QStringLiteral("leds"));
    leds->setChecked(true);
    all = all &&
          photographer.Show(
              SignOf({96, 32}, {Text(QStringLiteral("Gleis 7"), {0, 0, 96, 32}, 24, false, 6, 6)}),
              0, 20) &&
          photographer.Photograph(QStringLiteral("studio-leds.png"));
    studio::window::display::LedsDialog dialog(QSize(16, 16), QStringLiteral("hello.json"));
    dialog.SetAddress(QStringLiteral("ddp://wall.local/serpentine,bottom-left,brightness=40"));
    dialog.show();
    all =
        all && dialog.grab().save(QDir(folder).filePath(QStringLiteral("studio-leds-dialog.png")));
    if (!all)
        std::fputs("tst_window: could not take the screenshots\n", stderr);
    return all ? 0 : 1;
}
