/**
 * @file
 * A form for settings of a text.
 */
#pragma once

#include "scene/attributes.h"
#include "studio/model/sign.h"
#include "studio/window/basics/numberfield.h"
#include "validate/validate.h"

#include <QGridLayout>
#include <QLabel>
#include <QWidget>

#include <functional>

namespace AnimText::studio::window::motion {
class Thumbnails;
}

namespace AnimText::studio::window::form {

/** A number of a text. */
struct TextSetting
{
    QString name;
    QString key; ///< in the scene file, if it is there
    std::function<int(const model::SignText& text)> read;
    std::function<void(model::SignText* text, int number)> write;
};

/** Sections with rows of a label, a mark for findings, and a field. */
class AttributeForm : public QWidget
{
    Q_OBJECT

public:
    AttributeForm();

    /** Adds a heading and, below it, @p widget, which takes the whole width. */
    void AddSection(const QString& heading, QWidget* widget = nullptr);
    /**
     * Adds the attributes of @p group, except those with a widget elsewhere.
     * @param thumbnails paints the pictures of choices
     */
    void AddAttributes(scene::Group group, motion::Thumbnails* thumbnails);
    /** Adds how a text is laid out in its area. */
    void AddLayout();

    void Show(const model::SignText& text);
    /** Shows findings about the text beside its fields. */
    void SetFindings(const QList<validate::Finding>& findings);

signals:
    /** @param merge consecutive changes with the same value are one undo step */
    void Edited(const QString& what, const QString& merge,
                const AnimText::studio::model::TextChange& change);

private:
    /** Why a text does not use a setting; empty if it does. */
    using Unused = std::function<QString(const model::SignText& text)>;
    struct Row
    {
        QString key;
        QString meaning;
        QLabel* label;
        QLabel* mark;
        QWidget* field;
        Unused unused;
    };

    void AddRow(const TextSetting& setting, QWidget* field, const Unused& unused = {});
    QWidget* FieldOf(const scene::Attribute& attribute, const TextSetting& setting,
                     motion::Thumbnails* thumbnails);
    basics::NumberField* MakeNumber(const TextSetting& setting, const QString& unit, int least,
                                    int most, int perUnit = 1);
    QWidget* MakeChoice(const TextSetting& setting, const QStringList& choices, int least = 0);
    QWidget* MakeFlag(const TextSetting& setting, const QString& words);
    QWidget* MakeNeon(const TextSetting& setting, motion::Thumbnails* thumbnails);
    QWidget* MakePair(const scene::Attribute& attribute, const TextSetting& setting);
    QWidget* MakeFile(const TextSetting& setting);
    QWidget* MakeColor(const TextSetting& setting);
    void Tell(const TextSetting& setting, int number, const QString& merge = QString());

    QGridLayout* table = new QGridLayout(this);
    QList<Row> rows;
    QList<std::function<void(const model::SignText&)>> fills; // show a text in the fields
};

/** The key of the setting that @p finding is about. */
QString KeyOf(const validate::Finding& finding);

} // namespace AnimText::studio::window::form
