#include "studio/window/form/inspector.h"

#include "studio/window/basics/style.h"

#include <QEvent>
#include <QScrollBar>

namespace AnimText::studio::window::form {

Inspector::Inspector(motion::Thumbnails* thumbnails, QWidget* parent)
    : QScrollArea(parent)
    , motions(new motion::MotionPicker(thumbnails))
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* content = new QWidget(this);
    content->setLayout(
        basics::Arrange(Qt::Vertical, 0, {ofDisplay, ofText, nullptr}, 3 * basics::grid));
    ofDisplay->AddSection(tr("Display"), displayForm);
    ofText->AddSection(tr("Text"), text);
    ofText->AddSection(tr("Motion"), motions);
    ofText->AddAttributes(scene::Group::Motion, thumbnails);
    ofText->AddSection(tr("Layout"));
    ofText->AddLayout();
    ofText->AddSection(tr("Place"));
    ofText->AddAttributes(scene::Group::Place, thumbnails);
    ofText->AddSection(tr("Background"));
    ofText->AddAttributes(scene::Group::Background, thumbnails);
    ofText->AddSection(tr("Letters"));
    ofText->AddAttributes(scene::Group::Text, thumbnails);
    setWidget(content);

    connect(ofText, &AttributeForm::Edited, this, &Inspector::Edited);
    connect(text, &text::TextPanel::Edited, this, &Inspector::Edited);
    connect(motions, &motion::MotionPicker::Edited, this, &Inspector::Edited);
}

/** Keeps the panel as wide as its content needs in any font and language. */
bool Inspector::eventFilter(QObject* object, QEvent* event)
{
    const bool answer = QScrollArea::eventFilter(object, event);
    if (object == widget() && event->type() == QEvent::LayoutRequest)
        setMinimumWidth(ofText->minimumSizeHint().width() + 6 * basics::grid +
                        verticalScrollBar()->sizeHint().width());
    return answer;
}

void Inspector::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    motions->SetRoom(viewport()->height());
}

void Inspector::Show(const model::Sign& sign, const model::SignText* shown)
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

} // namespace AnimText::studio::window::form
