/**
 * @file
 * A form for the settings of a text, built from the table of attributes.
 */
#ifndef ANIMTEXT_ATTRIBUTEFORM_H
#define ANIMTEXT_ATTRIBUTEFORM_H

#include "scene/attributes.h"
#include "studio/model/sign.h"
#include "validate/validate.h"

#include <QGridLayout>
#include <QLabel>
#include <QToolButton>
#include <QWidget>

#include <functional>

namespace AnimText {

class Thumbnails;

/** Changes the text that is edited. */
using TextChange = std::function<void(SignText* text)>;

class AttributeForm : public QWidget
{
    Q_OBJECT

public:
    /** @param group the attributes to show, except those with a widget elsewhere
     * @param thumbnails paints the pictures of choices
     */
    AttributeForm(Group group, Thumbnails* thumbnails, QWidget* parent = nullptr);

    void Show(const SignText& text);
    /** Shows findings about the text beside its fields. */
    void SetFindings(const QList<Finding>& findings);

signals:
    /** @param merge consecutive changes with the same value are one undo step */
    void Edited(const QString& what, const QString& merge, const AnimText::TextChange& change);

private:
    struct Field
    {
        const Attribute* attribute;
        QLabel* label;
        QWidget* widget;
        QLabel* mark;
        std::function<void(const SceneNode&)> show;
    };

    void AddField(const Attribute& attribute, QGridLayout* layout);
    QWidget* MakeWidget(const Attribute& attribute, Field* field);
    QWidget* MakeNeon(const Attribute& attribute, Field* field);
    QWidget* MakeNumber(const Attribute& attribute, Field* field);
    QWidget* MakePair(const Attribute& attribute, Field* field);
    QWidget* MakeFile(const Attribute& attribute, Field* field);
    QWidget* MakeColor(const Attribute& attribute, Field* field);
    void Tell(const Attribute& attribute, int gesture, const std::function<void(SceneNode*)>& set);

    Thumbnails* thumbnails;
    QList<Field> fields;
};

} // namespace AnimText

Q_DECLARE_METATYPE(AnimText::TextChange)

#endif
