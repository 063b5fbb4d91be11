// The dialog that sends the studio's picture to LEDs. Packets stay on 127.0.0.1.
#include "studio/window/display/ledsdialog.h"
#include "studio/window/shell/mainwindow.h"
#include "table.h"

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <QUdpSocket>

using namespace AnimText;

class TestLedsDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    }
    void init() { QSettings().clear(); }

    void fieldsMatchAddress_data()
    {
        const Table<QString> row("address");
        row("plain", "ddp://wall.local");
        row("port and part", "ddp://127.0.0.1:4049/4,2,8x4");
        row("multicast", "sacn://");
        row("wiring", "artnet://h/serpentine,columns,bottom-left,rotate-270,universe=0");
        row("colors",
            "sacn://h/1,0,15x8,top-right,color-order=BRG,gamma=2.2,brightness=40,universe=7");
    }

    void fieldsMatchAddress()
    {
        QFETCH(QString, address);
        studio::window::display::LedsDialog dialog(QSize(16, 8), "it/wall.json");
        QVERIFY(!dialog.StartButton()->isEnabled()); // no controller yet
        dialog.SetAddress(address);
        QCOMPARE(dialog.Address(), address);
        QCOMPARE(dialog.Command(), "animtext play wall.json --to " + address);
        QVERIFY(dialog.StartButton()->isEnabled());
        dialog.SetAddress("ddp://h/99x99"); // does not fit
        QCOMPARE(dialog.Address(), address);
    }

    void showsWiringBeforeHost()
    {
        studio::window::display::LedsDialog dialog(QSize(16, 8), QString());
        const auto picture = [&dialog] {
            QImage found;
            for (const QLabel* label : dialog.findChildren<QLabel*>()) {
                const QPixmap shown = label->pixmap(Qt::ReturnByValue);
                found = shown.isNull() ? found : shown.toImage();
            }
            return found;
        };
        const QImage rows = picture();
        QVERIFY(!rows.isNull());
        dialog.findChild<QCheckBox*>()->setChecked(true);
        QVERIFY(picture() != rows);
    }

    void tabGoesDownThroughTheRows()
    {
        studio::window::display::LedsDialog dialog(QSize(16, 8), QString());
        dialog.show();
        QWidget* first = dialog.findChildren<QComboBox*>().first();
        int row = 0; // pixels
        for (QWidget* field = first; field != &dialog; field = field->nextInFocusChain()) {
            if (field->parent() != &dialog || !(field->focusPolicy() & Qt::TabFocus))
                continue;
            const int middle = field->mapTo(&dialog, field->rect().center()).y();
            QVERIFY2(middle > row - 8, qPrintable(field->accessibleName()));
            row = middle;
        }
    }

    void sendsUntilStopped()
    {
        QUdpSocket receiver;
        QVERIFY(receiver.bind(QHostAddress(QHostAddress::LocalHost), 0));
        const auto next = [&] {
            QByteArray packet(2000, '\0');
            if (!receiver.hasPendingDatagrams() && !receiver.waitForReadyRead(300000))
                return QByteArray("nothing");
            packet.resize(int(receiver.readDatagram(packet.data(), packet.size())));
            return packet.mid(10);
        };
        const QString address = QString("ddp://127.0.0.1:%1").arg(receiver.localPort());
        QImage picture(1, 1, QImage::Format_RGB32);
        picture.fill(qRgb(1, 2, 3));
        {
            studio::window::display::LedsDialog dialog(QSize(1, 1), QString());
            dialog.show();
            dialog.SetAddress(address);
            dialog.Show(picture);
            dialog.StartButton()->click();
            QCOMPARE(next(), QByteArray("\1\2\3"));
            picture.fill(qRgb(4, 5, 6));
            dialog.Show(picture);
            QCOMPARE(next(), QByteArray("\4\5\6"));
            dialog.findChildren<QComboBox*>().last()->setCurrentText("BGR"); // applies at once
            QCOMPARE(next(), QByteArray("\6\5\4"));
            dialog.PatternButton()->click();
            QCOMPARE(next(), QByteArray("\xFF\xFF\xFF")); // the only corner
            dialog.PatternButton()->click();
            QByteArray shown = next();
            while (shown.endsWith('\xFF')) // later steps of the pattern
                shown = next();
            QCOMPARE(shown, QByteArray("\6\5\4"));
            dialog.close();
            for (int i = 0; i < 3; ++i)
                QCOMPARE(next(), QByteArray(3, '\0'));
            dialog.Show(picture);
            QVERIFY(!receiver.hasPendingDatagrams());
        }
        studio::window::shell::MainWindow(QString()).close(); // writes its own settings
        QCOMPARE(studio::window::display::LedsDialog(QSize(1, 1), QString()).Address(),
                 address + "/color-order=BGR"); // remembered for next time
    }

    void sendsStudioPicture()
    {
        studio::worker::WorkerLink::SetProgram(ANIMTEXT_PROGRAMS "/animtext-studio");
        QUdpSocket receiver;
        QVERIFY(receiver.bind(QHostAddress(QHostAddress::LocalHost), 0));
        studio::window::shell::MainWindow window{QString()};
        window.New();
        QTRY_VERIFY_WITH_TIMEOUT(!window.Display()->Picture().isNull(), 300000);
        for (QAction* action : window.findChildren<QAction*>())
            if (action->text().contains("on L&EDs"))
                action->trigger();
        auto* dialog = window.findChild<studio::window::display::LedsDialog*>();
        QVERIFY(dialog);
        dialog->SetAddress(QString("ddp://127.0.0.1:%1").arg(receiver.localPort()));
        dialog->StartButton()->click();
        // The present picture and that of another tick.
        for (int tick : {0, 20}) {
            window.GetPlayback()->Seek(tick);
            QByteArray expected;
            QByteArray found = "none";
            const auto isThere = [&] {
                expected = lights::LedMap(Whole(window.Display()->Picture().size()))
                               .Channels(window.Display()->Picture());
                while (receiver.hasPendingDatagrams()) {
                    QByteArray packet(2000, '\0');
                    packet.resize(int(receiver.readDatagram(packet.data(), packet.size())));
                    const bool isFirst = packet.mid(4, 4) == QByteArray(4, '\0');
                    found = (isFirst ? QByteArray() : found) + packet.mid(10);
                }
                return found == expected && window.GetRehearsal()->IsCurrent();
            };
            QTRY_VERIFY_WITH_TIMEOUT(isThere(), 300000);
        }
    }

    void reportsErrors()
    {
        studio::window::display::LedsDialog dialog(QSize(16, 8), QString());
        dialog.SetAddress("ddp://host.invalid");
        dialog.StartButton()->click();
        QTRY_VERIFY_WITH_TIMEOUT(dialog.State().contains("was not found"), 300000);
        QCOMPARE(dialog.StartButton()->text(), QString("Start"));
        dialog.SetAddress("ddp://[fe80::1]"); // says nothing about the network to take
        dialog.StartButton()->click();
        QVERIFY2(dialog.State().contains("fe80::1"), qPrintable(dialog.State()));
    }

private:
    static lights::Controller Whole(QSize size)
    {
        lights::Controller controller;
        controller.rect = QRect(QPoint(0, 0), size);
        return controller;
    }

    const QTemporaryDir settings;
};

QTEST_MAIN(TestLedsDialog)
#include "tst_ledsdialog.moc"
