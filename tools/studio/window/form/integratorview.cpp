#include "studio/window/form/integratorview.h"

#include "studio/window/basics/style.h"

#include <QFileDialog>
#include <QFontDatabase>

namespace AnimText::studio::window::form {

IntegratorView::IntegratorView(QWidget* parent)
    : QWidget(parent)
{
    calls->setReadOnly(true);
    calls->setLineWrapMode(QPlainTextEdit::NoWrap);
    calls->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    calls->setAccessibleName(tr("Device calls"));
    calls->setFrameShape(QFrame::NoFrame);
    for (int i = 0; i < Torv::OperationCount; ++i)
        operation->addItem(QLatin1String(Torv::OperationName(Torv::Operation(i))));
    operation->setAccessibleName(tr("Call"));
    nth->setRange(1, 10000);
    nth->setPrefix(tr("no. "));
    nth->setAccessibleName(tr("Number of the call, counted from the start"));
    auto* fail = new QToolButton(this);
    fail->setText(tr("Make it fail"));
    fail->setToolTip(tr("Plays from the start and makes this device call fail"));
    clear->setText(tr("Clear failures"));
    clear->setToolTip(tr("Lets all device calls succeed again"));
    library->setText(tr("Compare with a library…"));
    library->setToolTip(
        tr("Plays the scene with a second plugin library, too, and marks the pixels that differ"));
    noLibrary->setText(tr("Stop comparing"));
    noLibrary->hide();
    differing->setFont(basics::TabularFont(font()));

    auto* top = basics::Arrange(
        Qt::Horizontal, basics::grid,
        {operation, nth, fail, clear, failing, nullptr, differing, library, noLibrary});
    setLayout(basics::Arrange(Qt::Vertical, basics::grid, {top, calls}, basics::grid));

    connect(fail, &QToolButton::clicked, this,
            [this] { AddFault(operation->currentIndex(), nth->value()); });
    connect(clear, &QToolButton::clicked, this, [this] { SetFaults({}); });
    connect(library, &QToolButton::clicked, this, [this] {
        const QString path = QFileDialog::getOpenFileName(this, tr("Choose a plugin library"),
                                                          QString(), tr("Libraries (*.so*)"));
        if (!path.isEmpty())
            SetLibrary(path);
    });
    connect(noLibrary, &QToolButton::clicked, this, [this] { SetLibrary(QString()); });
    SetFaults({});
}

void IntegratorView::SetFaults(const QVector<QPair<qint32, qint32>>& wanted)
{
    faults = wanted;
    QStringList words;
    for (const QPair<qint32, qint32>& fault : faults)
        words.append(QStringLiteral("%1 #%2")
                         .arg(QLatin1String(Torv::OperationName(Torv::Operation(fault.first))))
                         .arg(fault.second));
    failing->setText(words.isEmpty() ? QString() : tr("Made to fail: %1").arg(words.join(", ")));
    basics::SetInk(failing, basics::Warning(palette()));
    clear->setEnabled(!faults.isEmpty());
    emit FaultsChanged();
}

void IntegratorView::ShowCalls(int tick, const QByteArray& lines)
{
    const QString text = lines.isEmpty() ? tr("No device calls at tick %1").arg(tick)
                                         : QString::fromUtf8(lines).trimmed();
    if (calls->toPlainText() != text)
        calls->setPlainText(text);
}

void IntegratorView::ShowDifferences(int pixels)
{
    differing->setText(pixels < 0    ? QString()
                       : pixels == 0 ? tr("No pixels differ")
                                     : tr("%n pixel(s) differ", nullptr, pixels));
}

void IntegratorView::SetLibrary(const QString& path)
{
    noLibrary->setVisible(!path.isEmpty());
    library->setToolTip(path);
    ShowDifferences(-1);
    emit LibraryChosen(path);
}

} // namespace AnimText::studio::window::form
