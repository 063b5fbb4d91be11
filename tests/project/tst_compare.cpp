// script/compare against a recording that was changed afterwards.
#include <QProcess>
#include <QtTest>

class TestCompare : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void changesAreFound_data();
    void changesAreFound();

private:
    QString Compare(const QStringList& words, int* status) const;

    QTemporaryDir folder{QDir::tempPath() + "/compare Prüf-XXXXXX"};
    QString recorded;
};

QString TestCompare::Compare(const QStringList& words, int* status) const
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(COMPARE_SCRIPT,
                  words + QStringList{"--program", "\"" ANIMTEXT_PROGRAM "\"", folder.path()});
    process.waitForFinished(-1);
    *status = process.exitCode();
    return process.readAll();
}

void TestCompare::initTestCase()
{
    QVERIFY(QDir(folder.path()).mkdir("scenes"));
    QCOMPARE(QProcess::execute(ANIMTEXT_PROGRAM,
                               {"author", "--text", "ab", "--dazzle", "--effect", "7", "--area",
                                "64x32", "-o", folder.filePath("scenes/Grün 1.json")}),
             0);
    int status = -1;
    const QString output = Compare({"--record", "--ticks", "5"}, &status);
    QVERIFY2(status == 0, qPrintable(output));
    QFile file(folder.filePath("expected.txt"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    recorded = file.readAll();
    QCOMPARE(recorded.count('\n'), 6);
}

void TestCompare::changesAreFound_data()
{
    QTest::addColumn<QString>("was"); // a regular expression, replaced wherever it matches
    QTest::addColumn<QString>("is");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("says");
    QTest::newRow("none") << "$."
                          << "" << 0 << " 7  BeforeAfterScalEffect +1 +6 +6\n";
    QTest::newRow("a picture") << "( 3 1 64 32 )\\w+"
                               << "\\1-0123456789abcd" << 1
                               << " 6 +5  Grün 1, tick 3\n.*Pictures differ: Grün 1\n";
    QTest::newRow("not compared") << "( 3 1 64 32 )\\w+"
                                  << "\\1-" << 0 << " 5 +5\n";
    QTest::newRow("a background") << "( 3 .* 1 )\\w+"
                                  << "\\10123456789abcdef" << 1
                                  << "Backgrounds: equal in 0 of 1.*Backgrounds differ: Grün 1\n";
    QTest::newRow("unknown backgrounds") << " \\w{16}\n"
                                         << "\n"
                                         << 0 << " 6 +6\n";
    QTest::newRow("a state") << "1 (\\w+)\n"
                             << "0 \\1\n"
                             << 1 << " 6 +6\n.*states differ: Grün 1\n";
    QTest::newRow("a size") << " 64 "
                            << " 65 " << 1 << "sizes or states differ: Grün 1\n";
    QTest::newRow("no number") << " 3 1"
                               << " x 1" << 2 << "expected.txt:4: expected: scene, tick";
    QTest::newRow("no scene") << "Grün"
                              << "Rot" << 2 << "Rot 1.json is missing";
}

void TestCompare::changesAreFound()
{
    QFETCH(QString, was);
    QFETCH(QString, is);
    QFETCH(QString, says);
    QFile file(folder.filePath("expected.txt"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QString(recorded).replace(QRegularExpression(was), is).toUtf8());
    file.close();
    int status = -1;
    const QString output = Compare({}, &status);
    QTEST(status, "status");
    const QRegularExpression wanted(says, QRegularExpression::DotMatchesEverythingOption);
    QVERIFY2(wanted.match(output).hasMatch(), qPrintable(output));
}

QTEST_GUILESS_MAIN(TestCompare)
#include "tst_compare.moc"
