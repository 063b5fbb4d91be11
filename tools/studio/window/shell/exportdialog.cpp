#include "studio/window/shell/exportdialog.h"

#include "files/wholefile.h"
#include "film/kinds.h"
#include "film/lamps.h"
#include "player/player.h"
#include "studio/window/basics/style.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QToolButton>
#include <QUrl>

namespace AnimText::studio::window::shell {

ExportDialog::ExportDialog(const model::Sign& sign, const QString& scenePath, const QString& plugin,
                           const ExportView& view, QWidget* parent)
    : QDialog(parent)
    , sign(sign)
    , scenePath(scenePath)
    , plugin(plugin)
    , view(view)
{
    setWindowTitle(tr("Export a film"));
    for (const film::FilmKind& kind : film::FilmKinds()) {
        const QString ending = QLatin1String(kind.ending);
        format->addItem(kind.Has(film::FilmKind::Folder)  ? tr("Folder of PNGs")
                        : kind.Has(film::FilmKind::Still) ? tr("PNG, one picture")
                                                          : ending.mid(1).toUpper(),
                        ending);
    }
    scale->setRange(1, 16);
    scale->setSuffix(tr(" ×"));
    schedule->setChecked(view.schedule || sign.PageCount() > 1);
    const auto seconds = [](int tick) {
        return basics::SecondsText(qint64(tick) * player::tickLength);
    };
    extent->addItem(tr("All of it"), QPoint(0, -1));
    if (const time::Playback* seen = view.playback) {
        const QPoint loop(seen->LoopBegin(), seen->LoopEnd());
        const QPoint picture(seen->Tick(), seen->Tick());
        if (seen->HasLoop())
            extent->addItem(tr("The loop, %1 to %2").arg(seconds(loop.x()), seconds(loop.y() + 1)),
                            loop);
        extent->addItem(tr("This picture, tick %1").arg(picture.x()), picture);
    }
    extent->setAccessibleName(tr("What is exported"));
    lamps->setChecked(view.lamps);
    output->setAccessibleName(tr("File"));
    auto* browse = new QToolButton(this);
    browse->setText(tr("…"));
    browse->setToolTip(tr("Choose the file"));
    browse->setAccessibleName(browse->toolTip());
    forecast->setWordWrap(true);
    basics::PrepareCommand(command);
    state->setWordWrap(true);
    state->setTextInteractionFlags(Qt::TextBrowserInteraction);
    state->setOpenExternalLinks(true);
    state->setAccessibleName(tr("State"));
    state->hide();
    progress->setTextVisible(false);
    progress->hide();
    start->setDefault(true);

    auto* form = new QFormLayout;
    form->setHorizontalSpacing(3 * basics::grid);
    form->setVerticalSpacing(2 * basics::grid);
    form->addRow(tr("Export"), extent);
    form->addRow(tr("Format"), format);
    form->addRow(tr("File"), basics::Arrange(Qt::Horizontal, basics::grid, {output, browse}));
    form->addRow(tr("Magnify"), scale);
    for (QCheckBox* box : {lamps, schedule, transparent, lossless}) {
        form->addRow(QString(), box);
        connect(box, &QCheckBox::toggled, this, &ExportDialog::Refresh);
    }
    form->addRow(tr("Result"), forecast);
    form->addRow(tr("As a command"), command);
    auto* buttons = basics::Arrange(Qt::Horizontal, 2 * basics::grid, {nullptr, close, start});
    setLayout(basics::Arrange(Qt::Vertical, 3 * basics::grid, {form, progress, state, buttons},
                              4 * basics::grid));
    setMinimumWidth(560);

    const QFileInfo scene(scenePath);
    const QString base = scenePath.isEmpty() ? QDir::home().filePath(tr("sign"))
                                             : scene.dir().filePath(scene.completeBaseName());
    output->setText(base + format->currentData().toString());
    connect(browse, &QToolButton::clicked, this, [this] {
        const QString path =
            QFileDialog::getSaveFileName(this, tr("Export a film"), output->text());
        if (path.isEmpty())
            return;
        replaced = path; // the file dialog has asked
        output->setText(path);
    });
    connect(format, qOverload<int>(&QComboBox::activated), this, &ExportDialog::FormatChosen);
    connect(output, &QLineEdit::textChanged, this, &ExportDialog::Refresh);
    connect(scale, qOverload<int>(&QSpinBox::valueChanged), this, &ExportDialog::Refresh);
    connect(extent, qOverload<int>(&QComboBox::activated), this, &ExportDialog::ExtentChosen);
    connect(start, &QPushButton::clicked, this, &ExportDialog::Begin);
    connect(close, &QPushButton::clicked, this, &ExportDialog::reject);
    connect(&exporting, &worker::Export::Progress, this, &ExportDialog::ShowProgress);
    connect(&exporting, &worker::Export::Ended, this, &ExportDialog::End);
    Refresh();
}

worker::ExportSettings ExportDialog::Settings() const
{
    worker::ExportSettings settings;
    settings.output = output->text();
    settings.scale = scale->value();
    settings.first = extent->currentData().toPoint().x();
    settings.last = extent->currentData().toPoint().y();
    if (lamps->isChecked()) {
        settings.pitch = view.pitch;
        // Even, for films that need even sides.
        settings.scale = qMax(film::smallestLamp, (settings.scale + 1) / 2 * 2);
    }
    settings.schedule = schedule->isChecked();
    settings.transparent = transparent->isChecked() && transparent->isEnabled();
    settings.lossless = lossless->isChecked() && lossless->isEnabled();
    return settings;
}

void ExportDialog::FormatChosen()
{
    QString path = output->text();
    const film::FilmKind* kind = film::FilmKindOf(path);
    if (kind && path.endsWith(QLatin1String(kind->ending), Qt::CaseInsensitive))
        path.chop(int(qstrlen(kind->ending)));
    output->setText(path + format->currentData().toString());
}

void ExportDialog::ExtentChosen()
{
    const film::FilmKind* kind = film::FilmKindOf(output->text());
    const bool isPicture = Settings().first == Settings().last;
    if (isPicture != (kind && kind->Has(film::FilmKind::Still))) {
        format->setCurrentIndex(isPicture ? format->findData(".png") : 0);
        FormatChosen();
    }
    Refresh();
}

/** Size and length of what will be made. */
QString ExportDialog::ForecastOf(const worker::ExportSettings& settings) const
{
    const QSize size = sign.display * settings.scale;
    const QString pixels = tr("%1 × %2 px").arg(size.width()).arg(size.height());
    const bool isPart = settings.last >= 0;
    const int length = view.playback ? view.playback->Length() : 0; // 0 if it is not known
    const int pictures = isPart ? settings.last - settings.first + 1 : length;
    if (isPart && pictures == 1)
        return pixels;
    if (pictures == 0)
        return tr("%1 · to the end of all texts").arg(pixels);
    const QString seconds = basics::SecondsText(qint64(pictures) * player::tickLength);
    if (isPart || settings.schedule)
        return QStringLiteral("%1 · %2").arg(pixels, seconds);
    // The film holds the last page once more at its end.
    return tr("%1 · %2 and the last hold once more").arg(pixels, seconds);
}

/** What the format cannot do is off, and says why. */
void ExportDialog::Refresh()
{
    if (output->text() != replaced)
        replaced.clear();
    const film::FilmKind* kind = film::FilmKindOf(output->text());
    const auto has = [kind](film::FilmKind::Trait trait) { return kind && kind->Has(trait); };
    if (kind)
        format->setCurrentIndex(format->findData(QLatin1String(kind->ending)));
    const bool canBoth = has(film::FilmKind::LosslessAlpha);
    transparent->setEnabled(has(film::FilmKind::Transparent) && !lamps->isChecked() &&
                            (!lossless->isChecked() || canBoth));
    lossless->setEnabled(has(film::FilmKind::Lossless) && (!transparent->isChecked() || canBoth));
    transparent->setToolTip(transparent->isEnabled() ? QString()
                            : lamps->isChecked()     ? tr("LEDs are on black.")
                                                     : tr("Films of this format cannot be."));
    lossless->setToolTip(lossless->isEnabled() ? QString() : tr("This format loses colors."));
    // One picture is a PNG, and a PNG is one picture.
    const bool isStill = has(film::FilmKind::Still);
    if (kind && isStill != (Settings().first == Settings().last) && view.playback)
        extent->setCurrentIndex(isStill ? extent->count() - 1 : 0);
    forecast->setText(ForecastOf(Settings()));
    start->setText(tr("Export"));
    start->setEnabled(kind && (!isStill || view.playback) && !sign.texts.isEmpty() &&
                      !exporting.IsRunning());
    command->setText(
        worker::RenderCommandLine(scenePath.isEmpty() ? "sign.json" : scenePath, Settings()));
    command->setCursorPosition(0);
}

void ExportDialog::Say(const QString& words, bool isWarning)
{
    basics::SetInk(state,
                   isWarning ? basics::Warning(palette()) : palette().color(QPalette::WindowText));
    state->setText(words);
    state->show();
}

void ExportDialog::Begin()
{
    const QFileInfo there(output->text());
    const bool isThere = there.isDir() ? !QDir(there.filePath()).isEmpty() : there.exists();
    if (isThere && replaced != output->text()) {
        replaced = output->text();
        Say(tr("%1 exists already.").arg(replaced), true);
        start->setText(tr("Replace"));
        return;
    }
    QString error;
    const scene::Scene scene = folder.Put(sign, -1, &error);
    try {
        files::FailUnless(error.isEmpty(), error);
        files::WriteWhole(scene.path, scene::SceneToJson(scene));
    } catch (const files::Failure& failure) {
        return End(failure.message, false);
    }
    progress->setRange(0, 0);
    progress->show();
    replaced.clear(); // the next film asks again
    Say(tr("Starting"));
    close->setText(tr("Cancel"));
    start->setEnabled(false);
    exporting.Start(plugin, scene.path, Settings());
}

void ExportDialog::ShowProgress(qint64 done, qint64 total, const QString& stage)
{
    progress->setRange(0, int(total));
    progress->setValue(int(done));
    state->setText(total == 0 ? tr("Looking for the end: tick %1").arg(done)
                   : stage == QLatin1String("rendering")
                       ? tr("Picture %1 of %2").arg(done).arg(total)
                       : tr("Counting colors: picture %1 of %2").arg(done).arg(total));
}

void ExportDialog::End(const QString& error, bool canceled)
{
    progress->hide();
    close->setText(tr("Close"));
    const auto link = [](const QString& path, const QString& words) {
        return QStringLiteral("  <a href=\"%1\">%2</a>")
            .arg(QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded), words);
    };
    const QFileInfo made(output->text());
    if (canceled)
        Say(tr("Canceled; nothing was written."));
    else if (!error.isEmpty())
        Say(error, true);
    else
        Say(tr("Saved %1").arg(output->text().toHtmlEscaped()) +
            link(made.absoluteFilePath(), tr("Open")) +
            link(made.absolutePath(), tr("Show in folder")));
    Refresh();
    emit Done(!canceled && error.isEmpty());
}

void ExportDialog::reject()
{
    if (exporting.IsRunning())
        exporting.Cancel();
    else
        QDialog::reject();
}

} // namespace AnimText::studio::window::shell
