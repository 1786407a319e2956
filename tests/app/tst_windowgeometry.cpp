// Where the main window opens, for the screens it may meet.
#include "app/windowgeometry.h"

#include <QTest>

using Screens = QList<QRect>;

class TestWindowGeometry : public QObject
{
    Q_OBJECT

private slots:
    void opensWhereItFits_data()
    {
        QTest::addColumn<Screens>("screens");
        QTest::addColumn<std::optional<QRect>>("saved");
        QTest::addColumn<QRect>("expected");

        const QRect fullHd(0, 0, 1920, 1040);
        QTest::newRow("desktop, first start: 1200 x 800 centred")
            << Screens{fullHd} << std::optional<QRect>() << QRect(360, 120, 1200, 800);
        QTest::newRow("small laptop: nine tenths of the screen")
            << Screens{QRect(0, 0, 1280, 700)} << std::optional<QRect>() << QRect(64, 35, 1152, 630);
        QTest::newRow("phone: the whole screen")
            << Screens{QRect(0, 0, 412, 892)} << std::optional<QRect>() << QRect(0, 0, 412, 892);
        QTest::newRow("where it was left")
            << Screens{fullHd} << std::optional<QRect>(QRect(100, 50, 900, 700)) << QRect(100, 50, 900, 700);
        QTest::newRow("left half off the right edge: moved in")
            << Screens{fullHd} << std::optional<QRect>(QRect(1500, 100, 800, 600)) << QRect(1120, 100, 800, 600);
        QTest::newRow("larger than the screen: shrunk to it")
            << Screens{QRect(0, 0, 1280, 700)} << std::optional<QRect>(QRect(0, 0, 1600, 1000)) << QRect(0, 0, 1280, 700);
        QTest::newRow("on a second screen that is still there")
            << Screens{fullHd, QRect(1920, 0, 1280, 1024)} << std::optional<QRect>(QRect(2000, 100, 800, 600))
            << QRect(2000, 100, 800, 600);
        QTest::newRow("on a screen that is gone: centred on the first")
            << Screens{fullHd} << std::optional<QRect>(QRect(2000, 100, 800, 600)) << QRect(360, 120, 1200, 800);
        QTest::newRow("no size saved: as on a first start")
            << Screens{fullHd} << std::optional<QRect>(QRect()) << QRect(360, 120, 1200, 800);
    }

    void opensWhereItFits()
    {
        QFETCH(Screens, screens);
        QFETCH(std::optional<QRect>, saved);
        QFETCH(QRect, expected);
        QCOMPARE(WindowGeometry::initial(screens, saved), expected);
    }
};

QTEST_APPLESS_MAIN(TestWindowGeometry)
#include "tst_windowgeometry.moc"
