// Renders the guide's HTML source to an A4 PDF document. Pictures named "screen:..." are drawn
// here as simple phone screens: "screen:Title|row;row;...|button;button". Other pictures are
// files beside the source.
//
// usage: platterbox-overviewpdf SOURCE.html OUTPUT.pdf
#include <QAbstractTextDocumentLayout>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPageLayout>
#include <QPainter>
#include <QPainterPath>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QTextDocument>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

constexpr double kPageWidth = 595.2;
constexpr double kPageHeight = 841.8;

// A phone screen from "title|row;row|button;button": title bar, rows as list cells, buttons at the foot.
QImage drawScreen(const QString &layout, const QImage &record)
{
    const QStringList parts = layout.split(u'|');
    const QString title = parts.value(0);
    const QStringList rows = parts.value(1).split(u';', Qt::SkipEmptyParts);
    const QStringList buttons = parts.value(2).split(u';', Qt::SkipEmptyParts);

    const int scale = 2;
    QImage image(260 * scale, 440 * scale, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(scale, scale);
    p.setPen(QPen(QColor(u"#333333"_s), 3));
    p.setBrush(QColor(u"#fafafa"_s));
    p.drawRoundedRect(QRectF(4, 4, 252, 432), 24, 24);
    // Title bar.
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(u"#e8eef0"_s));
    p.drawRect(QRectF(6, 30, 248, 34));
    p.setPen(Qt::black);
    QFont font(u"sans-serif"_s);
    font.setPixelSize(14);
    font.setBold(true);
    p.setFont(font);
    p.drawText(QRectF(6, 30, 248, 34), Qt::AlignCenter, title);
    font.setBold(false);
    font.setPixelSize(11);
    p.setFont(font);

    double y = 74;
    const double buttonsHeight = buttons.size() * 34.0;
    for (const QString &row : rows) {
        if (y + 40 > 420 - buttonsHeight)
            break;
        const bool withCover = row.startsWith(u'*');
        const QString label = withCover ? row.mid(1) : row;
        p.setPen(Qt::NoPen);
        p.setBrush(QColor::fromHsvF(0.5, 0.06, 0.96));
        p.drawRoundedRect(QRectF(16, y, 228, withCover ? 44 : 32), 10, 10);
        double x = 26;
        if (withCover && !record.isNull()) {
            p.drawImage(QRectF(22, y + 4, 36, 36), record);
            x = 66;
        }
        p.setPen(Qt::black);
        p.drawText(QRectF(x, y, 236 - x, withCover ? 44 : 32), Qt::AlignVCenter | Qt::TextWordWrap, label);
        y += (withCover ? 44 : 32) + 6;
    }
    double by = 420 - buttonsHeight;
    for (const QString &button : buttons) {
        p.setPen(QPen(Qt::black, 2));
        p.setBrush(Qt::white);
        p.drawRoundedRect(QRectF(30, by, 200, 28), 10, 10);
        p.drawText(QRectF(30, by, 200, 28), Qt::AlignCenter, button);
        by += 34;
    }
    return image;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const QStringList args = app.arguments();
    QTextStream err(stderr);
    if (args.size() != 3) {
        err << "usage: platterbox-overviewpdf SOURCE.html OUTPUT.pdf\n";
        return 2;
    }
    QFile source(args.at(1));
    if (!source.open(QIODevice::ReadOnly)) {
        err << "cannot read " << args.at(1) << "\n";
        return 1;
    }
    const QString html = QString::fromUtf8(source.readAll());
    const QDir base = QFileInfo(args.at(1)).absoluteDir();
    const QImage record(base.filePath(u"black-vinyl-record.png"_s));

    QTextDocument document;
    QFont font(u"sans-serif"_s);
    font.setPointSizeF(11);
    document.setDefaultFont(font);
    document.setDocumentMargin(48);

    static const QRegularExpression pictures(uR"re(src="([^"]+)")re"_s);
    for (auto match = pictures.globalMatch(html); match.hasNext();) {
        // The HTML reader decodes entities in the name before it asks for the picture.
        const QString name = match.next().captured(1).replace(u"&amp;"_s, u"&"_s);
        QImage image = name.startsWith(u"screen:"_s) ? drawScreen(name.mid(7), record) : QImage(base.filePath(name));
        if (image.isNull()) {
            err << "missing picture " << name << "\n";
            return 1;
        }
        document.addResource(QTextDocument::ImageResource, QUrl(name), image);
    }

    QPdfWriter writer(args.at(2));
    writer.setResolution(72);
    writer.setTitle(u"Platterbox: Vinyl Collection Overview"_s);
    writer.setCreator(QStringLiteral("Platterbox " PLATTERBOX_VERSION));
    writer.setPageLayout(QPageLayout(QPageSize(QSizeF(kPageWidth, kPageHeight), QPageSize::Point), QPageLayout::Portrait,
                                     QMarginsF(0, 0, 0, 0)));
    document.documentLayout()->setPaintDevice(&writer);
    document.setHtml(html);
    document.setPageSize(QSizeF(kPageWidth, kPageHeight));
    QPainter painter(&writer);
    const int pages = document.pageCount();
    for (int page = 0; page < pages; ++page) {
        if (page > 0)
            writer.newPage();
        const QRectF rect(0, page * kPageHeight, kPageWidth, kPageHeight);
        painter.save();
        painter.translate(0, -rect.top());
        document.drawContents(&painter, rect);
        painter.restore();
        painter.setPen(Qt::gray);
        painter.drawText(QRectF(0, kPageHeight - 30, kPageWidth, 20), Qt::AlignCenter,
                         u"Platterbox guide \u2014 page %1 of %2"_s.arg(page + 1).arg(pages));
    }
    return painter.end() ? 0 : 1;
}
