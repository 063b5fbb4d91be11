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
    both->addWidget(ofText);
    both->addStretch(1);
    ofDisplay->AddSection(tr("Display"), displayForm);
    ofText->AddSection(tr("Text"), text);
    ofText->AddSection(tr("Motion"), motions);
    ofText->AddAttributes(Group::Motion, thumbnails);
    ofText->AddSection(tr("Layout"));
    ofText->AddLayout();
    ofText->AddSection(tr("Place"));
    ofText->AddAttributes(Group::Place, thumbnails);
    ofText->AddSection(tr("Background"));
    ofText->AddAttributes(Group::Background, thumbnails);
    ofText->AddSection(tr("Letters"));
    ofText->AddAttributes(Group::Text, thumbnails);
    setWidget(content);

    connect(ofText, &AttributeForm::Edited, this, &Inspector::Edited);
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
    ofText->Show(*shown);
}

} // namespace AnimText
