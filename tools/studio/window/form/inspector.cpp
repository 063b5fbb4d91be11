#include "studio/window/form/inspector.h"

#include "studio/window/basics/style.h"

#include <QEvent>
#include <QScrollBar>
#include <QVBoxLayout>

namespace AnimText {

Inspector::Inspector(Thumbnails* thumbnails, QWidget* parent)
    : QScrollArea(parent)
    , motions(new MotionPicker(thumbnails))
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
    for (QWidget* part : {ofDisplay, ofText}) {
        auto* layout = new QVBoxLayout(part);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(grid);
    }
    const auto section = [](QWidget* part, const QString& words, const QList<QWidget*>& widgets) {
        auto* layout = static_cast<QVBoxLayout*>(part->layout());
        if (layout->count() > 0)
            layout->addSpacing(3 * grid);
        auto* heading = new QLabel(words);
        QFont bold = heading->font();
        bold.setBold(true);
        heading->setFont(bold);
        layout->addWidget(heading);
        for (QWidget* widget : widgets)
            layout->addWidget(widget);
    };
    const auto form = [&] {
        forms.append(new AttributeForm);
        connect(forms.last(), &AttributeForm::Edited, this, &Inspector::Edited);
        return forms.last();
    };
    const auto attributes = [&](Group group) {
        AttributeForm* made = form();
        made->AddAttributes(group, thumbnails);
        return made;
    };
    section(ofText, tr("Text"), {text});
    section(ofText, tr("Motion"), {motions, attributes(Group::Motion)});
    section(ofText, tr("Layout"), {form()});
    forms.last()->AddLayout();
    section(ofText, tr("Place"), {attributes(Group::Place)});
    section(ofText, tr("Background"), {attributes(Group::Background)});
    section(ofText, tr("Letters"), {attributes(Group::Text)});
    section(ofDisplay, tr("Display"), {displayForm});
    for (QWidget* part : {ofDisplay, ofText})
        static_cast<QVBoxLayout*>(part->layout())->addStretch(1);
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
    for (AttributeForm* form : forms)
        form->Show(*shown);
}

void Inspector::SetFindings(const QList<Finding>& findings)
{
    for (AttributeForm* form : forms)
        form->SetFindings(findings);
}

} // namespace AnimText
