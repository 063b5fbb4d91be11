#include "studio/window/form/integratorview.h"

#include "studio/window/basics/style.h"

#include <QFileDialog>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace AnimText {

IntegratorView::IntegratorView(QWidget* parent)
    : QWidget(parent)
    , calls(new QPlainTextEdit(this))
    , operation(new QComboBox(this))
    , nth(new QSpinBox(this))
    , failing(new QLabel(this))
    , clear(new QToolButton(this))
    , library(new QToolButton(this))
    , noLibrary(new QToolButton(this))
    , differing(new QLabel(this))
{
    calls->setReadOnly(true);
    calls->setLineWrapMode(QPlainTextEdit::NoWrap);
    calls->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    calls->setAccessibleName(tr("Calls of the device"));
    calls->setFrameShape(QFrame::NoFrame);
    for (int i = 0; i < Torv::OperationCount; ++i)
        operation->addItem(QLatin1String(Torv::OperationName(Torv::Operation(i))));
    operation->setAccessibleName(tr("Call"));
    nth->setRange(1, 10000);
    nth->setPrefix(tr("call "));
    nth->setAccessibleName(tr("Which of its calls, from the start"));
    auto* fail = new QToolButton(this);
    fail->setText(tr("Make it fail"));
    fail->setToolTip(tr("Plays again from the start, and that call of the device fails"));
    clear->setText(tr("Clear failures"));
    clear->setToolTip(tr("Lets every call succeed again"));
    library->setText(tr("Compare with a library…"));
    library->setToolTip(tr("Plays the same with another plugin library and marks the pixels that "
                           "differ"));
    noLibrary->setText(tr("Stop comparing"));
    noLibrary->hide();
    differing->setFont(TabularFont(font()));

    auto* top = new QHBoxLayout;
    top->setSpacing(grid);
    for (QWidget* part : QList<QWidget*>{operation, nth, fail, clear, failing})
        top->addWidget(part);
    top->addStretch(1);
    for (QWidget* part : QList<QWidget*>{differing, library, noLibrary})
        top->addWidget(part);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(2 * grid, grid, 2 * grid, grid);
    layout->setSpacing(grid);
    layout->addLayout(top);
    layout->addWidget(calls, 1);

    connect(fail, &QToolButton::clicked, this,
            [this] { AddFault(operation->currentIndex(), nth->value()); });
    connect(clear, &QToolButton::clicked, this, [this] {
        faults.clear();
        ShowFaults();
        emit FaultsChanged();
    });
    connect(library, &QToolButton::clicked, this, &IntegratorView::ChooseLibrary);
    connect(noLibrary, &QToolButton::clicked, this, [this] { SetLibrary(QString()); });
    ShowFaults();
}

void IntegratorView::AddFault(int failed, int which)
{
    faults.append({failed, which});
    ShowFaults();
    emit FaultsChanged();
}

void IntegratorView::ShowFaults()
{
    QStringList words;
    for (const QPair<qint32, qint32>& fault : faults)
        words.append(QStringLiteral("%1 #%2")
                         .arg(QLatin1String(Torv::OperationName(Torv::Operation(fault.first))))
                         .arg(fault.second));
    failing->setText(words.isEmpty() ? QString()
                                     : tr("Fails: %1").arg(words.join(QStringLiteral(", "))));
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, Warning(colors));
    failing->setPalette(colors);
    clear->setEnabled(!faults.isEmpty());
}

void IntegratorView::ShowCalls(int tick, const QByteArray& lines)
{
    const QString text = lines.isEmpty() ? tr("No call of the device at tick %1.").arg(tick)
                                         : QString::fromUtf8(lines).trimmed();
    if (calls->toPlainText() != text)
        calls->setPlainText(text);
}

void IntegratorView::ShowDifferences(int pixels)
{
    if (pixels < 0)
        differing->clear();
    else
        differing->setText(pixels == 0 ? tr("No pixel differs")
                                       : tr("%n pixel(s) differ", nullptr, pixels));
}

void IntegratorView::ChooseLibrary()
{
    const QString path = QFileDialog::getOpenFileName(this, tr("Another plugin library"), QString(),
                                                      tr("Libraries (*.so*)"));
    if (!path.isEmpty())
        SetLibrary(path);
}

void IntegratorView::SetLibrary(const QString& path)
{
    noLibrary->setVisible(!path.isEmpty());
    library->setToolTip(path);
    ShowDifferences(-1);
    emit LibraryChosen(path);
}

void IntegratorView::showEvent(QShowEvent*)
{
    emit FaultsChanged(); // calls are kept while somebody looks at them
}

void IntegratorView::hideEvent(QHideEvent*)
{
    emit FaultsChanged();
}

} // namespace AnimText
