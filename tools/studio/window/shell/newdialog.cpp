#include "studio/window/shell/newdialog.h"

#include "studio/model/sign.h"
#include "studio/window/basics/style.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QSettings>
#include <QVBoxLayout>

namespace AnimText {
namespace {

const QString sizeKey = QStringLiteral("newDisplay");
const QString alphaKey = QStringLiteral("newAlpha");

} // namespace

NewDialog::NewDialog(QWidget* parent)
    : QDialog(parent)
    , form(new DisplayForm(this))
{
    setWindowTitle(tr("New scene"));
    const QSettings settings;
    form->Show(settings.value(sizeKey, Sign().display).toSize(),
               settings.value(alphaKey, true).toBool());
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    auto* create = buttons->addButton(tr("Create"), QDialogButtonBox::AcceptRole);
    create->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &NewDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &NewDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4 * grid, 4 * grid, 4 * grid, 4 * grid);
    layout->setSpacing(4 * grid);
    layout->addWidget(form);
    layout->addStretch(1);
    layout->addWidget(buttons);
}

void NewDialog::accept()
{
    QSettings settings;
    settings.setValue(sizeKey, form->Size());
    settings.setValue(alphaKey, form->AlphaBlend());
    QDialog::accept();
}

} // namespace AnimText
