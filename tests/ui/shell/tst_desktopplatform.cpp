// What the desktop hands to the clipboard and the mail client.
#include "shell/desktopplatformservices.h"

#include <QMimeData>
#include <QTest>

using namespace Qt::StringLiterals;

class TestDesktopPlatform : public QObject
{
    Q_OBJECT

private slots:
    void shareKeepsTheTextAndEveryPicture()
    {
        QImage front(40, 40, QImage::Format_RGB32);
        front.fill(Qt::red);
        QImage back(30, 20, QImage::Format_RGB32);
        back.fill(Qt::blue);
        ShareItems items;
        items.texts = {u"Album Name: <Blue> & more\nQuantity: 1"_s};
        items.images = {front, back};

        const auto data = shareMimeData(items);
        QCOMPARE(data->text(), items.texts.first());
        QCOMPARE(qvariant_cast<QImage>(data->imageData()), front);
        const QString html = data->html();
        QVERIFY(html.contains(u"Album Name: &lt;Blue&gt; &amp; more<br>Quantity: 1"_s));
        QCOMPARE(html.count(u"<img src=\"data:image/png;base64,"_s), 2);
        // The back cover is there too, after the front.
        const qsizetype last = html.lastIndexOf(u"base64,"_s) + 7;
        const QByteArray png = QByteArray::fromBase64(html.mid(last, html.indexOf(u'"', last) - last).toLatin1());
        QCOMPARE(QImage::fromData(png, "PNG").convertToFormat(QImage::Format_RGB32), back);
    }

    void mailClientGetsReadableText_data()
    {
        QTest::addColumn<QString>("body");
        QTest::addColumn<bool>("html");
        QTest::addColumn<QString>("text");
        QTest::newRow("feedback paragraph") << u"<p>Enter your comments about Platterbox app below: </p>"_s << true
                                            << u"Enter your comments about Platterbox app below: "_s;
        QTest::newRow("entities") << u"<p>Rock &amp; Roll</p>"_s << true << u"Rock & Roll"_s;
        QTest::newRow("plain text as it is") << u"<p> is text here"_s << false << u"<p> is text here"_s;
    }

    void mailClientGetsReadableText()
    {
        QFETCH(QString, body);
        QFETCH(bool, html);
        QFETCH(QString, text);
        MailMessage message;
        message.body = body;
        message.bodyIsHtml = html;
        QCOMPARE(mailClientBody(message), text);
    }
};

QTEST_MAIN(TestDesktopPlatform)
#include "tst_desktopplatform.moc"
