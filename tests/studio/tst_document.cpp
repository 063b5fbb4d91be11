#include "studio/model/recovery.h"

#include "testfolder.h"

#include <QApplication>
#include <QDirIterator>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

using namespace AnimText;

constexpr int patience = 240000; // milliseconds; the machine may be busy

class TestDocument : public QObject
{
    Q_OBJECT

private:
    TestFolder folder;

    static studio::model::Sign Written(const studio::model::Document& document, const QString& text)
    {
        studio::model::Sign sign = document.Current();
        sign.texts.first().source.text.text = text;
        return sign;
    }
    static QString TextOf(const studio::model::Document& document, int index = 0)
    {
        return document.Current().texts.at(index).Title();
    }
    static bool Saves(studio::model::Document* document, const QString& path)
    {
        QSignalSpy ended(document, &studio::model::Document::SaveEnded);
        document->Save(path);
        return ended.wait(patience) && ended.first().at(0).toBool();
    }

private slots:
    void mergesChangesOfOneGesture();
    void keepsSourcesBesideTheScene();
    void staysModifiedAfterChangeDuringSave();
    void reportsChangesOnDisk();
    void guessesSourcesFromStyles();
    void losesNothingWhenKilledWhileSaving();
    void removesUnneededCopies();
    void keepsOrderOfTexts();
};

void TestDocument::mergesChangesOfOneGesture()
{
    studio::model::Document document;
    document.New();
    const QString before = TextOf(document);
    for (const char* text : {"a", "ab", "abc"})
        document.Change("Text", Written(document, text), "text 1");
    document.Change("Text", Written(document, "abcd"), "text 2");
    document.Change("Text", Written(document, "abcde"));
    document.Change("Text", Written(document, "x"));
    for (const char* text : {"xy", "x"}) // ends where it began
        document.Change("Text", Written(document, text), "text 3");
    QStringList back;
    while (document.Undo()->canUndo()) {
        document.Undo()->undo();
        back.append(TextOf(document));
    }
    QCOMPARE(back, (QStringList{"abcde", "abcd", "abc", before}));
    document.Undo()->redo();
    QCOMPARE(TextOf(document), QString("abc"));
    QTRY_VERIFY_WITH_TIMEOUT(document.Current().IsLaidOut(), patience);
    QCOMPARE(document.Current().texts.first().layout->text, QString("abc"));
}

void TestDocument::keepsSourcesBesideTheScene()
{
    studio::model::Document document;
    document.New();
    studio::model::Sign sign = document.Current();
    author::TextSource& source = sign.texts.first().source;
    const layout::StyleRun run = source.text.runs.first();
    source.text = layout::StyledText();
    source.text.Append("Mind ", run);
    layout::StyleRun bold = run;
    bold.font.setBold(true);
    bold.font.setPixelSize(23);
    bold.color = QColor(1, 2, 3);
    source.text.Append("the gap", bold);
    source.align = layout::Align::Right;
    source.valign = layout::VAlign::Bottom;
    source.padding = 3;
    source.fit = layout::Fit::Both;
    source.keepsWords = false;
    const author::TextSource wanted = source;
    studio::model::AddText(&sign, studio::model::NewText(QSize(100, 30), 1));
    document.Change("Text", sign);
    const QString path = folder.Path("sign.json");
    QVERIFY(Saves(&document, path));
    QVERIFY(!document.IsModified());

    // Other programs may change settings that need no new layout.
    QCOMPARE(folder.Shell("animtext set sign.json 1 speed=3").status, 0);
    studio::model::Document again;
    QString error;
    QVERIFY2(again.Open(path, &error), qPrintable(error));
    QCOMPARE(again.Current().texts.size(), 2);
    QVERIFY(again.Current().texts.first().source == wanted);
    QCOMPARE(again.Current().texts.first().node.attributes.value("AnimationSpeed").toInt(), 3);
    QVERIFY(again.Current().IsLaidOut());

    // Saving under another name takes data files and sources along.
    const QString other = folder.Path("other");
    QVERIFY(QDir().mkpath(other));
    QVERIFY(Saves(&again, other + "/moved.json"));
    QCOMPARE(folder.Shell("animtext validate other/moved.json").status, 0);
    QVERIFY(again.Open(other + "/moved.json", &error));
    QVERIFY(again.Current().texts.first().source == wanted);
    // Data files of unused layouts are removed.
    document.Undo()->undo();
    document.KeepMine();
    QVERIFY(Saves(&document, path));
    QCOMPARE(folder.Listing().filter("sign.").size(), 4); // scene, sources, outlines, descents
}

void TestDocument::staysModifiedAfterChangeDuringSave()
{
    studio::model::Document document;
    document.New();
    document.Change("Text", Written(document, "one"), "text 1");
    QTRY_VERIFY_WITH_TIMEOUT(document.Current().IsLaidOut(), patience);
    QSignalSpy ended(&document, &studio::model::Document::SaveEnded);
    document.Save(folder.Path("still.json"));
    QVERIFY(document.IsSaving());
    document.Change("Text", Written(document, "two"), "text 1");
    QVERIFY(ended.wait(patience));
    QVERIFY(document.IsModified());
    QVERIFY(folder.Read("still.json").contains("\"Text\": \"one\""));
    QVERIFY(!Saves(&document, folder.Path("nowhere/still.json")));
    QVERIFY(document.IsModified());
    QCOMPARE(document.Path(), folder.Path("still.json"));
}

void TestDocument::reportsChangesOnDisk()
{
    studio::model::Document document;
    document.New();
    const QString path = folder.Path("disk.json");
    QVERIFY(Saves(&document, path));
    QSignalSpy changed(&document, &studio::model::Document::DiskChanged);
    document.Change("Text", Written(document, "mine"));
    QTRY_VERIFY_WITH_TIMEOUT(document.Current().IsLaidOut(), patience);
    QCOMPARE(folder.Shell("animtext set disk.json 1 speed=2").status, 0);
    const QByteArray theirs = folder.Read("disk.json");
    QVERIFY(!Saves(&document, path)); // the other program's version is kept
    QCOMPARE(folder.Read("disk.json"), theirs);
    QTRY_COMPARE_WITH_TIMEOUT(changed.size(), 1, patience);
    document.KeepMine();
    QVERIFY(document.IsModified());
    QVERIFY(Saves(&document, path));
    QVERIFY(folder.Read("disk.json").contains("mine"));
    QCOMPARE(changed.size(), 1); // its own save is not a change on disk
    folder.Remove("disk.json");  // nothing is lost by writing it again
    QVERIFY(Saves(&document, path));
}

void TestDocument::guessesSourcesFromStyles()
{
    QCOMPARE(folder
                 .Shell("animtext author -o styled.json --markup --area 400x64 --text "
                        "'<b>Gleis 7</b> <font size=\"24\" color=\"red\">nach <u>Z</u></font>'")
                 .status,
             0);
    studio::model::Document document;
    QString error;
    QVERIFY(document.Open(folder.Path("styled.json"), &error));
    const layout::StyledText& text = document.Current().texts.first().source.text;
    QCOMPARE(text.text.trimmed(), QString("Gleis 7 nach Z"));
    QVERIFY(text.At(0).font.bold() && !text.At(8).font.bold());
    QVERIFY(text.At(13).font.underline() && !text.At(12).font.underline());
    QCOMPARE(text.At(9).color, QColor(Qt::red));
    QVERIFY(text.At(0).font.pixelSize() > text.At(9).font.pixelSize());
    QVERIFY(!document.Open(folder.Path("missing.json"), &error));
    QVERIFY(error.contains("missing.json"));
    QCOMPARE(document.Current().texts.size(), 1); // the open sign stays
}

void TestDocument::losesNothingWhenKilledWhileSaving()
{
    const QString path = folder.Path("victim.json");
    const QString copies = folder.Path("copies");
    for (int words = 1; words <= 5; ++words) {
        QProcess victim;
        victim.start(QCoreApplication::applicationFilePath(), {"--victim", path, copies});
        QByteArray said;
        while (said.count('\n') < words && victim.waitForReadyRead(patience))
            said += victim.readAllStandardOutput();
        victim.kill();
        QVERIFY(victim.waitForFinished(patience));
        said += victim.readAllStandardOutput();
        QVERIFY(said.count('\n') >= words);

        QString error;
        studio::model::Document saved;
        if (said.contains("saved"))
            QVERIFY2(saved.Open(path, &error), qPrintable(error));
        QCOMPARE(folder.Shell("test ! -e victim.json || animtext validate victim.json").status, 0);
        studio::model::Document document;
        const studio::model::Recovery recovery(&document, copies);
        const QList<studio::model::LostWork> lost = recovery.Find();
        QCOMPARE(lost.size(), 1);
        document.Recover(lost.first().sign, lost.first().path);
        QVERIFY(document.IsModified());
        // The latest reported copy or a newer one, and complete.
        const int kept = said.lastIndexOf("kept ");
        const int number = said.mid(kept + 5, said.indexOf('\n', kept) - kept - 5).toInt();
        const QString text = TextOf(document);
        QVERIFY2(text.startsWith("text ") && text.mid(5).toInt() >= number, qPrintable(text));
        QVERIFY(document.Current().IsLaidOut());
        studio::model::Recovery::Drop(lost.first());
        QVERIFY(recovery.Find().isEmpty());
    }
}

void TestDocument::removesUnneededCopies()
{
    const QString copies = folder.Path("kept");
    const auto scenes = [&] {
        QDirIterator all(copies, {"scene.json"}, QDir::Files, QDirIterator::Subdirectories);
        return all.hasNext();
    };
    studio::model::Document document;
    {
        studio::model::Recovery recovery(&document, copies);
        QSignalSpy kept(&recovery, &studio::model::Recovery::Kept);
        document.New();
        document.Change("Text", Written(document, "kept"));
        QVERIFY(kept.wait(patience));
        QVERIFY(scenes());
        studio::model::Document other;
        QVERIFY(studio::model::Recovery(&other, copies)
                    .Find()
                    .isEmpty()); // its studio is still running
        QVERIFY(Saves(&document, folder.Path("kept.json")));
        QTRY_VERIFY_WITH_TIMEOUT(!scenes(), patience);
        document.Change("Text", Written(document, "again"));
        QVERIFY(kept.wait(patience));
        QVERIFY(scenes());
    }
    QVERIFY(!scenes());
}

void TestDocument::keepsOrderOfTexts()
{
    studio::model::Sign sign;
    QVector<int> ids;
    for (int page : {0, 1, 0, 2}) {
        studio::model::AddText(&sign, studio::model::NewText(QSize(64, 32), page));
        ids.append(0);
    }
    const auto places = [&] {
        QStringList list;
        for (const studio::model::SignText& text : sign.texts)
            list.append(QString("%1.%2").arg(text.page).arg(text.area));
        return list.join(' ');
    };
    QCOMPARE(places(), QString("0.0 0.1 1.0 2.0"));
    studio::model::RemoveText(&sign, sign.texts.at(0).id);
    QCOMPARE(places(), QString("0.0 1.0 2.0"));
    studio::model::RemoveText(&sign, sign.texts.at(1).id);
    QCOMPARE(places(), QString("0.0 1.0"));
    studio::model::RemoveText(&sign, 0);
    QCOMPARE(sign.PageCount(), 2);
}

/** Changes and saves forever, and prints what it has done. */
static int BeVictim(const QString& path, const QString& copies)
{
    studio::model::Document document;
    studio::model::Recovery recovery(&document, copies);
    int number = 0;
    const auto say = [](const QByteArray& line) {
        QFile out;
        if (out.open(stdout, QIODevice::WriteOnly))
            out.write(line + '\n');
    };
    const auto change = [&] {
        studio::model::Sign sign = document.Current();
        sign.texts.first().source.text.text = QString("text %1").arg(++number);
        document.Change("Text", sign);
    };
    document.New();
    change();
    QObject::connect(&recovery, &studio::model::Recovery::Kept, [&] {
        say("kept " + QByteArray::number(number));
        document.Save(path);
        change();
    });
    QObject::connect(&document, &studio::model::Document::SaveEnded, [&](bool saved) {
        say(saved ? "saved" : "failed");
        if (!document.IsModified()) // otherwise the number would run ahead of the copy
            change();
    });
    return QCoreApplication::exec();
}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    if (argc == 4 && qstrcmp(argv[1], "--victim") == 0)
        return BeVictim(QString::fromLocal8Bit(argv[2]), QString::fromLocal8Bit(argv[3]));
    TestDocument test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_document.moc"
