#include "entry/zoomviewcontroller.h"

#include "collection/recordform.h"
#include "shell/appdelegate.h"
#include "shell/platformservices.h"

#include <QBuffer>
#include <QFileInfo>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

// The full-size cover file when the record has one, else its small stored copy.
QString source(const QImage &stored, const QString &fullSizePath)
{
    if (!fullSizePath.isEmpty() && QFileInfo::exists(fullSizePath))
        return QUrl::fromLocalFile(fullSizePath).toString();
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    stored.save(&buffer, "PNG");
    return u"data:image/png;base64,"_s + QString::fromLatin1(data.toBase64());
}

} // namespace

ZoomViewController::ZoomViewController(AppDelegate *app, QObject *parent) : ScreenController(app, parent)
{
    loadIfReady();
}

void ZoomViewController::viewDidLoad()
{
    const CurrentRecord &record = app()->state()->currentRecord();
    m_images.clear();
    if (record.frontImage)
        m_images.append(source(*record.frontImage, record.frontImagePath));
    if (record.backImage)
        m_images.append(source(*record.backImage, record.backImagePath));
}

void ZoomViewController::shareButtonClicked()
{
    PlatformServices &platform = app()->platform();
    if (!platform.canSendText()) {
        showAlert(RecordForm::kCantSendTextTitle, RecordForm::kCantSendTextMessage);
        return;
    }
    const CurrentRecord &record = app()->state()->currentRecord();
    ShareItems items;
    for (const auto &image : {record.frontImage, record.backImage}) {
        if (image)
            items.images.append(*image);
    }
    platform.share(items);
}
