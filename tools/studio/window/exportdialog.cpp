#include "studio/window/exportdialog.h"

#include "player/filmfile.h"
#include "scene/wholefile.h"
#include "studio/window/looks.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QToolButton>
#include <QVBoxLayout>

namespace AnimText {

ExportDialog::ExportDialog(const Sign& sign, const QString& scenePath, const QString& plugin,
                           QWidget* parent)
    : QDialog(parent)
    , sign(sign)
    , scenePath(scenePath)
    , plugin(plugin)
    , format(new QComboBox(this))
    , output(new QLineEdit(this))
    , scale(new QSpinBox(this))
    , schedule(
          new QCheckBox(tr("As the host plays it: each page for the time that it is told"), this))
    , transparent(new QCheckBox(tr("Transparent where nothing is shown"), this))
    , lossless(new QCheckBox(tr("Every pixel as it is"), this))
    , command(new QLineEdit(this))
    , progress(new QProgressBar(this))
    , state(new QLabel(this))
    , start(new QPushButton(tr("Export"), this))
    , close(new QPushButton(tr("Close"), this))
{
    setWindowTitle(tr("Export a film"));
    for (const FilmKind& kind : FilmKinds()) {
        const QString ending = QLatin1String(kind.ending);
        if (kind.still)
            continue;
        format->addItem(
            ending == QLatin1String("/") ? tr("Folder of PNGs") : ending.mid(1).toUpper(), ending);
    }
    scale->setRange(1, 16);
    scale->setSuffix(tr(" ×"));
    schedule->setChecked(sign.PageCount() > 1);
    output->setAccessibleName(tr("File"));
    command->setReadOnly(true);
    command->setFrame(false);
    command->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    command->setAccessibleName(tr("The same as a command"));
    auto* copy = new QToolButton(this);
    copy->setIcon(Icon(QStringLiteral("edit-copy")));
    copy->setAutoRaise(true);
    copy->setToolTip(tr("Copy the command"));
    copy->setAccessibleName(tr("Copy the command"));
    auto* browse = new QToolButton(this);
    browse->setText(tr("…"));
    browse->setToolTip(tr("Choose the file"));
    browse->setAccessibleName(tr("Choose the file"));
    state->setWordWrap(true);
    progress->setTextVisible(false);
    start->setDefault(true);

    const auto row = [](QWidget* first, QWidget* second) {
        auto* layout = new QHBoxLayout;
        layout->setSpacing(grid);
        layout->addWidget(first, 1);
        layout->addWidget(second);
        return layout;
    };
    auto* form = new QFormLayout;
    form->setHorizontalSpacing(3 * grid);
    form->setVerticalSpacing(2 * grid);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(tr("Format"), format);
    form->addRow(tr("File"), row(output, browse));
    form->addRow(tr("Each pixel as"), scale);
    form->addRow(QString(), schedule);
    form->addRow(QString(), transparent);
    form->addRow(QString(), lossless);
    form->addRow(tr("As a command"), row(command, copy));
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(close);
    buttons->addWidget(start);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4 * grid, 4 * grid, 4 * grid, 4 * grid);
    layout->setSpacing(3 * grid);
    layout->addLayout(form);
    layout->addWidget(progress);
    layout->addWidget(state);
    layout->addLayout(buttons);
    progress->hide();
    state->hide();
    setMinimumWidth(560);

    const QFileInfo scene(scenePath);
    const QString base = scenePath.isEmpty() ? QDir::home().filePath(tr("sign"))
                                             : scene.dir().filePath(scene.completeBaseName());
    output->setText(base + format->currentData().toString());
    connect(format, qOverload<int>(&QComboBox::activated), this, &ExportDialog::FormatChosen);
    connect(output, &QLineEdit::textChanged, this, [this] {
        if (output->text() != replaced)
            replaced.clear();
        Refresh();
    });
    connect(scale, qOverload<int>(&QSpinBox::valueChanged), this, &ExportDialog::Refresh);
    for (QCheckBox* box : {schedule, transparent, lossless})
        connect(box, &QCheckBox::toggled, this, &ExportDialog::Refresh);
    connect(copy, &QToolButton::clicked, this,
            [this] { QApplication::clipboard()->setText(command->text()); });
    connect(browse, &QToolButton::clicked, this, &ExportDialog::Browse);
    connect(start, &QPushButton::clicked, this, &ExportDialog::Begin);
    connect(close, &QPushButton::clicked, this, &ExportDialog::reject);
    connect(&exporting, &Export::Progress, this, [this](qint64 done, qint64 all) {
        progress->setRange(0, int(all));
        progress->setValue(int(done));
        state->setText(all > 0 ? tr("Picture %1 of %2").arg(done).arg(all)
                               : tr("Looking for the end: tick %1").arg(done));
    });
    connect(&exporting, &Export::Ended, this, &ExportDialog::End);
    Refresh();
}

void ExportDialog::SetOutput(const QString& path)
{
    output->setText(path);
}

ExportWishes ExportDialog::Wishes() const
{
    ExportWishes wishes;
    wishes.output = output->text();
    wishes.scale = scale->value();
    wishes.schedule = schedule->isChecked();
    wishes.transparent = transparent->isChecked() && transparent->isEnabled();
    wishes.lossless = lossless->isChecked() && lossless->isEnabled();
    return wishes;
}

void ExportDialog::FormatChosen()
{
    QString path = output->text();
    for (const FilmKind& kind : FilmKinds()) {
        if (path.endsWith(QLatin1String(kind.ending)))
            path.chop(int(qstrlen(kind.ending)));
    }
    output->setText(path + format->currentData().toString());
}

/** What the format cannot do is off, and says why. */
void ExportDialog::Refresh()
{
    const FilmKind* kind = FilmKindOf(output->text());
    const int index = kind ? format->findData(QLatin1String(kind->ending)) : -1;
    if (index >= 0)
        format->setCurrentIndex(index);
    transparent->setEnabled(kind && kind->transparent &&
                            (!lossless->isChecked() || kind->losslessTransparent));
    lossless->setEnabled(kind && kind->lossless &&
                         (!transparent->isChecked() || kind->losslessTransparent));
    transparent->setToolTip(transparent->isEnabled() ? QString()
                                                     : tr("Films of this format cannot be."));
    lossless->setToolTip(lossless->isEnabled() ? QString() : tr("This format loses colors."));
    start->setText(tr("Export"));
    start->setEnabled(index >= 0 && !sign.texts.isEmpty() && !exporting.IsRunning());
    command->setText(
        RenderCommandLine(scenePath.isEmpty() ? QStringLiteral("sign.json") : scenePath, Wishes()));
    command->setCursorPosition(0);
}

void ExportDialog::Say(const QString& words, bool isWarning)
{
    QPalette colors = palette();
    if (isWarning)
        colors.setColor(QPalette::WindowText, Warning(colors));
    state->setPalette(colors);
    state->setText(words);
    state->show();
}

void ExportDialog::Browse()
{
    const QString path = QFileDialog::getSaveFileName(this, tr("Export a film"), output->text());
    if (path.isEmpty())
        return;
    replaced = path; // the file dialog has asked
    output->setText(path);
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
    const Scene scene = folder.Put(sign);
    QString error;
    if (!WriteWhole(scene.path, SceneToJson(scene), &error)) {
        End(error, false);
        return;
    }
    progress->setRange(0, 0);
    progress->show();
    replaced.clear(); // the next film asks again
    Say(tr("Starting"), false);
    close->setText(tr("Cancel"));
    exporting.Start(plugin, scene.path, Wishes());
    start->setEnabled(false);
}

void ExportDialog::End(const QString& error, bool cancelled)
{
    progress->hide();
    close->setText(tr("Close"));
    if (cancelled)
        Say(tr("Canceled; nothing was written."), false);
    else if (!error.isEmpty())
        Say(error, true);
    else
        Say(tr("Saved %1").arg(output->text()), false);
    Refresh();
    emit Done(!cancelled && error.isEmpty());
}

void ExportDialog::reject()
{
    if (exporting.IsRunning())
        exporting.Cancel();
    else
        QDialog::reject();
}

} // namespace AnimText
