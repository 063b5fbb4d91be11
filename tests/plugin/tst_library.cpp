// The library as a host sees it: what Qt's loader finds, what is exported, and the editor in it.
#include "edit/animationtextedit.h"
#include "table.h"

#include <hneonnodebase.h>
#include <icontentrender.h>
#include <inodeplugin.h>

#include <QLibrary>
#include <QMimeData>
#include <QPluginLoader>
#include <QTextBlock>

#include <memory>

namespace {

class Editor : public Lw::HNodeAnimationText::AnimationTextEdit
{
public:
    Editor()
        : AnimationTextEdit(nullptr)
    {
    }
    using AnimationTextEdit::insertFromMimeData;
};

const char* const interfaceId = "Lw.interface.INodePlugin/1.0";

} // namespace

class TestLibrary : public QObject
{
    Q_OBJECT

private slots:
    void theLoaderTakesIt()
    {
        QVERIFY2(loader.load(), qPrintable(loader.errorString()));
        QCOMPARE(loader.metaData().value("IID").toString(), QString(interfaceId));
        QCOMPARE(loader.metaData().value("className").toString(), QString("HNodeAnimationText"));
        QVERIFY(loader.instance());
        QCOMPARE(loader.instance(), loader.instance());
        QVERIFY(!loader.instance()->parent());
    }

    void itsCastsAnswer_data()
    {
        const Table<QString, QString> row("name", "answer");
        row("itself", "Lw::HNodeAnimationText::HNodeAnimationText", "object");
        row("a base", "QObject", "object");
        row("the interface's name", "INodePlugin", "interface");
        row("the interface's identifier", interfaceId, "interface");
        row("another", "HNodeAnimationText", "null");
    }

    void itsCastsAnswer()
    {
        QFETCH(QString, name);
        QFETCH(QString, answer);
        QObject* const object = loader.instance();
        void* const interface = qobject_cast<Lw::INodePlugin*>(object);
        QVERIFY(interface && interface != object); // the second base has another address
        QCOMPARE(object->qt_metacast(qPrintable(name)),
                     answer == "object" ? object : answer == "interface" ? interface : nullptr);
        QVERIFY(!object->qt_metacast(nullptr));
    }

    void itAnswersItsOwnAndTheDefaults()
    {
        Lw::INodePlugin* const plugin = qobject_cast<Lw::INodePlugin*>(loader.instance());
        QCOMPARE(plugin->level(), 4);
        QCOMPARE(plugin->type(), QString("LW_animationText_Plugin"));
        QCOMPARE(plugin->name(), QString());
        QVERIFY(plugin->icon().isNull());
        Lw::INodePlugin another;
        QCOMPARE(another.level(), 5);
        QCOMPARE(&plugin->icon(), &another.icon()); // one for all libraries
        QModelIndex index;
        QVERIFY(!plugin->GetClient() && !plugin->CreateFrameRender(nullptr));
        const bool added = plugin->AddFile(nullptr, index, 0) ||
                           plugin->NewFile(nullptr, index, 0) ||
                           plugin->AddFileBasisSuffix("", nullptr, index, 0) ||
                           plugin->AddFileBasisSupport("", nullptr, index, 0);
        QVERIFY(!added && !plugin->OverrideNewFile());
    }

    void itMakesNodesAndRenderers()
    {
        Lw::INodePlugin* const plugin = qobject_cast<Lw::INodePlugin*>(loader.instance());
        const std::unique_ptr<Lw::HNode> node(plugin->Create());
        const std::unique_ptr<Lw::HNode> other(plugin->Create());
        QVERIFY(node && other && node != other);
        QCOMPARE(node->Type(), plugin->type());
        const std::unique_ptr<Lw::IContentRender> render(plugin->CreateAreaRender(node.get()));
        QCOMPARE(render->renderState(), 1);
        const std::unique_ptr<Lw::IContentRender> empty(plugin->CreateAreaRender(nullptr));
        empty->Start(1);
        QCOMPARE(empty->renderState(), 2);
    }

    void aDeletedObjectIsMadeAnew()
    {
        const QPointer<QObject> first = loader.instance();
        delete first;
        QVERIFY(loader.instance());
        QVERIFY(!first);
        QCOMPARE(qobject_cast<Lw::INodePlugin*>(loader.instance())->level(), 4);
    }

    void itsVerificationTextIsExact()
    {
        typedef const char* (*Query)();
        const Query query = reinterpret_cast<Query>(
            QLibrary::resolve(PLUGIN_FILE, "qt_plugin_query_verification_data"));
        QVERIFY(query);
        QCOMPARE(QByteArray(query()),
                 QByteArray("pattern=QT_PLUGIN_VERIFICATION_DATA\nversion=4.8.5\ndebug=false\n"
                            "buildkey=arm qws/linux g++-4 no-pkg-config"));
    }

    void itExportsLittleElse()
    {
        QProcess nm;
        nm.start("nm", {"-D", "--defined-only", "--demangle", PLUGIN_FILE});
        QVERIFY(nm.waitForFinished(-1));
        QCOMPARE(nm.exitCode(), 0);
        QStringList symbols;
        bool editor = false;
        for (const QString& line :
             QString(nm.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts)) {
            const QString symbol = line.section(' ', 2);
            const bool ofEditor = symbol.contains("AnimationTextEdit");
            editor = editor || symbol.contains("AnimationTextEdit::AnimationTextEdit(QWidget*)");
            if (!ofEditor)
                symbols.append(symbol);
        }
        symbols.sort();
        QVERIFY(editor);
        const QString metadata =
            QT_VERSION < 0x060000 ? "qt_plugin_query_metadata" : "qt_plugin_query_metadata_v2";
        QCOMPARE(symbols, QStringList({"qt_plugin_instance", metadata,
                                       "qt_plugin_query_verification_data"}));
    }

    void pastesArrivePlain_data()
    {
        // html: beside the text
        // text: null: no data at all
        const Table<QString, QString, QColor> row("html", "text", "background");
        const QString foreign = "<table><tr><td bgcolor=\"#ff0000\"><b style=\"font-family:Foreign;"
                                "font-size:50pt;color:#00ff00\">rich</b></td></tr></table>";
        row("text", "", "plain", QColor());
        row("text on a background", "", "plain", QColor(Qt::yellow));
        row("rich text", foreign, "plain", QColor());
        row("rich text on a background", foreign, "plain", QColor(Qt::yellow));
        row("several lines", "", "plain\ntext", QColor());
        row("only rich text", foreign, "", QColor());
        row("no data", "", QString(), QColor());
    }

    void pastesArrivePlain()
    {
        QFETCH(QString, html);
        QFETCH(QString, text);
        QFETCH(QColor, background);
        Editor editor;
        QTextCharFormat current;
        current.setFontFamily("DejaVu Serif");
        current.setFontWeight(QFont::Bold);
        current.setFontItalic(true);
        current.setForeground(Qt::blue);
        if (background.isValid())
            current.setBackground(background);
        editor.setCurrentCharFormat(current);

        QMimeData data;
        if (!html.isEmpty())
            data.setHtml(html);
        if (!text.isEmpty())
            data.setText(text);
        editor.insertFromMimeData(text.isNull() ? nullptr : &data);

        // From rich text alone, Qt makes the plain text.
        const QString expected = html.isEmpty() || !text.isEmpty() ? text : data.text();
        QCOMPARE(editor.toPlainText(), expected);
        for (QTextBlock block = editor.document()->begin(); block.isValid(); block = block.next()) {
            for (auto it = block.begin(); !it.atEnd(); ++it) {
                const QTextCharFormat format = it.fragment().charFormat();
                QCOMPARE(format.font().family(), QString("DejaVu Serif"));
                QCOMPARE(format.background().style(),
                         background.isValid() ? Qt::SolidPattern : Qt::NoBrush);
                if (background.isValid())
                    QCOMPARE(format.background().color(), background);
                QCOMPARE(format.foreground().style(), Qt::NoBrush);
                QVERIFY(!format.fontItalic() && format.fontWeight() != QFont::Bold);
                QVERIFY(format.fontPointSize() < 50);
            }
        }
    }

private:
    QPluginLoader loader{PLUGIN_FILE};
};

QTEST_MAIN(TestLibrary)
#include "tst_library.moc"
