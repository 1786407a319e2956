// Tour steps of the entry screens: the add screen empty and filled, the edit screen, the
// release-date picker in its three looks, the notes and the cover zoom.
#include "entry/addvinylviewcontroller.h"
#include "entry/editvinylviewcontroller.h"
#include "shell/appdelegate.h"
#include "store/samplecollection.h"
#include "tour.h"

#include <QLinearGradient>
#include <QPainter>
#include <QQuickItem>
#include <QVariant>

using namespace Qt::StringLiterals;

namespace {

// A drawn photo of a sleeve, larger than the stored covers, as a camera or a file gives it.
QImage drawnPhoto()
{
    QImage image(900, 900, QImage::Format_RGB32);
    QPainter painter(&image);
    QLinearGradient gradient(0, 0, 900, 900);
    gradient.setColorAt(0, QColor(0x1d, 0x3b, 0x6e));
    gradient.setColorAt(1, QColor(0xe0, 0x7a, 0x2f));
    painter.fillRect(image.rect(), gradient);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor(20, 20, 20));
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(QPointF(450, 450), 330, 330);
    painter.setBrush(QColor(0xf2, 0xd0, 0x6b));
    painter.drawEllipse(QPointF(450, 450), 110, 110);
    painter.setPen(Qt::white);
    QFont font = painter.font();
    font.setPixelSize(64);
    font.setBold(true);
    painter.setFont(font);
    painter.drawText(QRect(0, 40, 900, 100), Qt::AlignCenter, u"NIGHT SIGNALS"_s);
    return image;
}

// The first sample record with both covers, opened as the collection list opens it.
void pickSampleRecord(TourContext &c)
{
    Store &store = c.app().persistentContainer();
    const auto records = store.fetchVinyl(FetchRequest(Entity::Vinyl).sortedBy(u"id"_s).limitedTo(1));
    if (!records || records->isEmpty())
        return;
    Vinyl v = records->first();
    if (auto full = store.vinylByRowId(v.rowId); full && full->has_value())
        v = **full;
    v.notes = u"First pressing, gatefold sleeve. Small seam split at the top; plays clean."_s;
    (void)store.update(v);
    c.app().state()->setCurrentRecord(v);
    c.app().state()->setOriginScreen(OriginScreens::List);
}

void openEditor(TourContext &c)
{
    c.home();
    pickSampleRecord(c);
    c.show(u"EditVinylView"_s);
    c.settle(600);
}

void scrollFormTo(TourContext &c, qreal contentY)
{
    if (QObject *form = c.find(u"RecordForm"_s)) {
        for (QQuickItem *child : qobject_cast<QQuickItem *>(form)->childItems()) {
            if (child->inherits("QQuickFlickable")) {
                const qreal bottom = child->property("contentHeight").toReal() - child->height();
                child->setProperty("contentY", std::max<qreal>(0, std::min(contentY, bottom)));
            }
        }
    }
    c.settle();
}

void openDatePicker(TourContext &c, const QString &settingsKey)
{
    Settings &settings = c.app().settings();
    for (const QString &key : {SettingsKeys::UseDateWheel, SettingsKeys::UseDateCompact, SettingsKeys::UseDateInline})
        settings.setValue(key, key == settingsKey);
    openEditor(c);
    QObject *form = c.find(u"RecordForm"_s);
    QObject *field = c.find(u"ReleaseDateTextField"_s);
    if (form && field) {
        form->setProperty("editedItem", QVariant::fromValue(field));
        form->setProperty("sheet", u"date"_s);
        QMetaObject::invokeMethod(form, "showEdited");
    }
    c.settle(600);
    for (const QString &key : {SettingsKeys::UseDateWheel, SettingsKeys::UseDateCompact, SettingsKeys::UseDateInline})
        settings.remove(key);
}

} // namespace

void addEntrySteps(QList<TourStep> &steps)
{
    steps.append({u"add-record-empty.png"_s, [](TourContext &c) {
                      c.home();
                      c.app().state()->setOriginScreen(OriginScreens::Menu);
                      c.show(u"AddVinylView"_s);
                  }});
    steps.append({u"add-record-filled.png"_s, [](TourContext &c) {
                      c.home();
                      c.app().state()->setOriginScreen(OriginScreens::Menu);
                      c.show(u"AddVinylView"_s);
                      if (auto *add = qobject_cast<AddVinylViewController *>(c.topController())) {
                          add->setAlbumName(u"Night Signals"_s);
                          add->setArtist(u"The Harbour Lights"_s);
                          add->setReleaseDate(u"Sep 14, 1979"_s);
                          add->setRecordLabel(u"Meridian"_s);
                          add->setQuantity(u"2"_s);
                          add->setRecordLength(u"41.5"_s);
                          add->setBarcode(u"5012345678900"_s);
                          add->setCoverImage(CoverSide::Front, drawnPhoto());
                      }
                      c.settle(600);
                  }});
    steps.append({u"add-record-filled-lower.png"_s, [](TourContext &c) {
                      if (auto *add = qobject_cast<AddVinylViewController *>(c.topController())) {
                          add->setProducer(u"Ada Quinn"_s);
                          add->setVinylCondition(u"Near Mint"_s);
                          add->setCoverCondition(u"Very Good Plus"_s);
                          add->setRecordSpeed(u"33 RPM"_s);
                          add->setDoubleAlbum(u"Single Album"_s);
                          add->setCost(u"12.50"_s);
                          add->setValue(u"40"_s);
                          add->setNotes(u"Bought at the harbour market."_s);
                      }
                      scrollFormTo(c, 10000);
                  }});
    steps.append({u"add-record-not-saved.png"_s, [](TourContext &c) {
                      c.home();
                      c.show(u"AddVinylView"_s);
                      if (auto *add = qobject_cast<AddVinylViewController *>(c.topController())) {
                          add->setAlbumName(u"Night Signals"_s);
                          add->setQuantity(u"40000"_s);
                          add->setArtist(u"The Harbour Lights"_s);
                          add->setRecordLabel(u"Meridian"_s);
                          add->SaveNewVinylButtonClicked();
                      }
                      c.settle(600);
                  }});
    steps.append({u"edit-record.png"_s, [](TourContext &c) { openEditor(c); }});
    steps.append({u"edit-record-lower.png"_s, [](TourContext &c) {
                      openEditor(c);
                      scrollFormTo(c, 10000);
                  }});
    steps.append({u"edit-record-remove-cover.png"_s, [](TourContext &c) {
                      openEditor(c);
                      if (auto *edit = qobject_cast<EditVinylViewController *>(c.topController()))
                          edit->RemoveFrontImage();
                      c.settle(600);
                  }});
    steps.append({u"edit-record-date-wheel.png"_s, [](TourContext &c) { openDatePicker(c, SettingsKeys::UseDateWheel); }});
    steps.append({u"edit-record-date-compact.png"_s, [](TourContext &c) { openDatePicker(c, SettingsKeys::UseDateCompact); }});
    steps.append({u"edit-record-date-inline.png"_s, [](TourContext &c) { openDatePicker(c, SettingsKeys::UseDateInline); }});
    steps.append({u"edit-record-condition-picker.png"_s, [](TourContext &c) {
                      openEditor(c);
                      if (QObject *field = c.find(u"VinylConditionTextField"_s))
                          QMetaObject::invokeMethod(field, "tapped");
                      c.settle(600);
                  }});
    steps.append({u"notes.png"_s, [](TourContext &c) {
                      openEditor(c);
                      c.show(u"NotesView"_s);
                  }});
    steps.append({u"zoom.png"_s, [](TourContext &c) {
                      openEditor(c);
                      c.show(u"ZoomView"_s);
                      c.settle(600);
                  }});
}
