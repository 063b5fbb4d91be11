#include "studio/window/form/inspector.h"

#include "studio/window/basics/style.h"

#include <QEvent>
#include <QScrollBar>
#include <QVBoxLayout>

namespace AnimText {

Inspector::Inspector(Thumbnails* thumbnails, QWidget* parent)
    : QScrollArea(parent)
    , ofText(new QWidget)
    , ofDisplay(new QWidget)
    , displayForm(new DisplayForm)
    , text(new TextPanel)
    , motions(new MotionPicker(thumbnails))
    , layoutForm(new LayoutForm)
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* content = new QWidget(this);
    auto* both = new QVBoxLayout(content);
    both->setContentsMargins(3 * grid, 2 * grid, 3 * grid, 3 * grid);
    both->addWidget(ofDisplay);
    both->addWidget(ofText, 1);
    auto* display = new QVBoxLayout(ofDisplay);
    display->setContentsMargins(0, 0, 0, 0);
    display->setSpacing(grid);
    display->addWidget(Heading(tr("Display")));
    display->addWidget(displayForm);
    display->addStretch(1);
    auto* layout = new QVBoxLayout(ofText);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(grid);
    const auto section = [&](const QString& words, const QList<QWidget*>& parts) {
        if (layout->count() > 0)
            layout->addSpacing(3 * grid);
        layout->addWidget(Heading(words));
        for (QWidget* part : parts)
            layout->addWidget(part);
    };
    for (Group group : {Group::Text, Group::Motion, Group::Place, Group::Background}) {
        auto* form = new AttributeForm(group, thumbnails);
        forms.append(form);
        connect(form, &AttributeForm::Edited, this, &Inspector::Edited);
    }
    connect(layoutForm, &LayoutForm::Edited, this, &Inspector::Edited);
    section(tr("Text"), {text});
    section(tr("Motion"), {motions, forms.at(1)});
    section(tr("Layout"), {layoutForm});
    section(tr("Place"), {forms.at(2)});
    section(tr("Background"), {forms.at(3)});
    section(tr("Letters"), {forms.at(0)});
    layout->addStretch(1);
    setWidget(content);
    // All labels are as wide as the widest, so that the fields line up.
    int widest = 0;
    const QList<QLabel*> labels = ofText->findChildren<QLabel*>();
    for (const QLabel* label : labels)
        widest = qMax(widest, label->buddy() ? label->sizeHint().width() : 0);
    for (QLabel* label : labels) {
        if (label->buddy())
            label->setMinimumWidth(widest);
    }

    connect(text, &TextPanel::Edited, this, [this](const StyledText& styled, int gesture) {
        emit Edited(tr("Text"), QStringLiteral("text %1").arg(gesture),
                    [styled](SignText* edited) { edited->source.text = styled; });
    });
    connect(motions, &MotionPicker::Chosen, this, [this](bool scroll, int number) {
        emit Edited(tr("Motion"), QString(), [scroll, number](SignText* edited) {
            auto& attributes = edited->node.attributes;
            const NodeMotion old = MotionOf(edited->node);
            const NodeMotion next{scroll ? Mode::Scroll : Mode::Entrance, number};
            SetMotion(&edited->node, next);
            // Entrances and scrolls have separate speeds; keep the one that was set.
            if (attributes.contains(old.SpeedKey()))
                attributes[next.SpeedKey()] = attributes.value(old.SpeedKey());
        });
    });
}

/** Keeps the panel as wide as its content needs in any font and language. */
bool Inspector::eventFilter(QObject* object, QEvent* event)
{
    const bool answer = QScrollArea::eventFilter(object, event);
    if (object == widget() && event->type() == QEvent::LayoutRequest)
        setMinimumWidth(ofText->minimumSizeHint().width() + 6 * grid +
                        verticalScrollBar()->sizeHint().width());
    return answer;
}

void Inspector::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    motions->SetRoom(viewport()->height());
}

QLabel* Inspector::Heading(const QString& words)
{
    auto* label = new QLabel(words);
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    return label;
}

void Inspector::Show(const Sign& sign, const SignText* shown)
{
    ofText->setVisible(shown != nullptr);
    ofDisplay->setVisible(shown == nullptr);
    text->Show(shown);
    if (!shown) {
        displayForm->Show(sign.display, sign.alphaBlend);
        return;
    }
    motions->Show(*shown);
    layoutForm->Show(*shown);
    for (AttributeForm* form : forms)
        form->Show(*shown);
}

void Inspector::SetFindings(const QList<Finding>& findings)
{
    for (AttributeForm* form : forms)
        form->SetFindings(findings);
}

} // namespace AnimText
