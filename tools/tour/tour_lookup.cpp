// Tour steps of the Look Up sheet: the releases a barcode finds, the add form they fill, the
// question about a release the collection has, and what the edit screen would fill in. The
// catalogue is a fake one on 127.0.0.1 serving invented releases.
#include "entry/lookupsheetcontroller.h"
#include "fakecatalogue.h"
#include "shell/appdelegate.h"
#include "store/fetchrequest.h"
#include "store/store.h"
#include "tour.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QLinearGradient>
#include <QPainter>
#include <QQuickItem>

using namespace Qt::StringLiterals;

namespace {

QByteArray drawnCover(QColor from, QColor to, const QString &title)
{
    QImage image(500, 500, QImage::Format_RGB32);
    QPainter painter(&image);
    QLinearGradient gradient(0, 0, 500, 500);
    gradient.setColorAt(0, from);
    gradient.setColorAt(1, to);
    painter.fillRect(image.rect(), gradient);
    painter.setPen(Qt::white);
    QFont font = painter.font();
    font.setPixelSize(46);
    font.setBold(true);
    painter.setFont(font);
    painter.drawText(QRect(0, 360, 500, 100), Qt::AlignCenter, title);
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPEG", 85);
    return bytes;
}

// The fake catalogue, started once for the whole tour; the clients of the sheets made after it
// ask it.
void startCatalogue()
{
    static std::unique_ptr<FakeService> service;
    if (service)
        return;
    service = std::make_unique<FakeService>();
    serveSaltRoads(*service, drawnCover(QColor(0x12, 0x4e, 0x66), QColor(0xd9, 0xa4, 0x41), u"SALT ROADS"_s));
    service->answer(u"/release/%1/back-500"_s.arg(kSaltRoadsId),
                    {{200, drawnCover(QColor(0x22, 0x22, 0x22), QColor(0x12, 0x4e, 0x66), u"SIDE A · SIDE B"_s)}});
    service->answer(u"/release/%1/front-250"_s.arg(kSecondPressingId),
                    {{200, drawnCover(QColor(0x6b, 0x1d, 0x2f), QColor(0xe8, 0xc3, 0x9e), u"SALT ROADS"_s)}});
    pointClientsAt(service->base());
}

// Lets the window run until `done` holds (the catalogue answers a second apart) or 10 s pass.
template<typename Condition>
void runUntil(TourContext &c, Condition done)
{
    QElapsedTimer timer;
    timer.start();
    while (!done() && timer.elapsed() < 10000)
        c.settle(50);
    c.settle(400);
}

// Opens the Look Up sheet of the screen shown and searches the barcode on the sleeve.
LookupSheetController *openSheetAndSearch(TourContext &c)
{
    QObject *sheet = c.find(u"LookupSheet"_s);
    if (!sheet)
        return nullptr;
    QMetaObject::invokeMethod(sheet, "open");
    auto *controller = sheet->property("controller").value<LookupSheetController *>();
    if (!controller)
        return nullptr;
    controller->setQuery(u"7391234567893"_s);
    controller->Search();
    runUntil(c, [&] {
        const auto *rows = controller->candidates();
        return !controller->isBusy() && rows->rowCount() == 2
            && !rows->data(rows->index(1), LookupCandidateModel::CoverSourceRole).toString().isEmpty();
    });
    return controller;
}

void openAddScreen(TourContext &c)
{
    startCatalogue();
    c.home();
    c.app().state()->setOriginScreen(OriginScreens::Menu);
    c.show(u"AddVinylView"_s);
}

// The collection holds "Salt Roads" for the question about a release it has.
void keepSaltRoadsInTheCollection(TourContext &c)
{
    Store &store = c.app().persistentContainer();
    const auto found = store.count(FetchRequest(Entity::Vinyl).where(Predicate::equal(u"name"_s, u"Salt Roads"_s)));
    if (found && found.value() > 0)
        return;
    Vinyl v;
    v.id = 32000;
    v.name = u"Salt Roads"_s;
    v.artist = u"Ana Ström & The Quiet"_s;
    v.recordLabel = u"Harbour Light Records"_s;
    v.quantity = 1;
    v.imagesLoaded = true;
    (void)store.insert(v);
}

// ... and not, for the pictures of a release it does not have.
void dropSaltRoadsFromTheCollection(TourContext &c)
{
    Store &store = c.app().persistentContainer();
    const auto rows = store.fetchVinyl(FetchRequest(Entity::Vinyl).where(Predicate::equal(u"name"_s, u"Salt Roads"_s)));
    for (const Vinyl &v : rows.valueOr({}))
        (void)store.transaction([&] { return store.remove(Entity::Vinyl, v.rowId); });
}

} // namespace

void addLookupSteps(QList<TourStep> &steps)
{
    steps.append({u"lookup-candidates.png"_s, [](TourContext &c) {
                      dropSaltRoadsFromTheCollection(c);
                      openAddScreen(c);
                      openSheetAndSearch(c);
                  }});
    steps.append({u"lookup-filled.png"_s, [](TourContext &c) {
                      dropSaltRoadsFromTheCollection(c);
                      openAddScreen(c);
                      if (auto *sheet = openSheetAndSearch(c)) {
                          sheet->CandidateChosen(0);
                          runUntil(c, [&] { return !sheet->isBusy(); });
                      }
                  }});
    steps.append({u"lookup-filled-tracks.png"_s, [](TourContext &c) {
                      if (QObject *tracks = c.find(u"LookedUpTracks"_s)) {
                          auto *item = qobject_cast<QQuickItem *>(tracks);
                          for (QQuickItem *p = item; p; p = p->parentItem()) {
                              if (p->inherits("QQuickFlickable")) {
                                  const QPointF at = item->mapToItem(p->childItems().value(0), QPointF(0, 0));
                                  const qreal bottom = p->property("contentHeight").toReal() - p->height();
                                  p->setProperty("contentY", std::clamp<qreal>(at.y() - 80, 0, std::max<qreal>(0, bottom)));
                                  break;
                              }
                          }
                      }
                      c.settle();
                  }});
    steps.append({u"lookup-already-in-collection.png"_s, [](TourContext &c) {
                      keepSaltRoadsInTheCollection(c);
                      openAddScreen(c);
                      if (auto *sheet = openSheetAndSearch(c)) {
                          sheet->CandidateChosen(0);
                          runUntil(c, [&] { return sheet->page() == u"duplicate"_s; });
                      }
                  }});
    steps.append({u"lookup-edit-review.png"_s, [](TourContext &c) {
                      startCatalogue();
                      keepSaltRoadsInTheCollection(c);
                      c.home();
                      Store &store = c.app().persistentContainer();
                      const auto rows = store.fetchVinyl(
                          FetchRequest(Entity::Vinyl).where(Predicate::equal(u"name"_s, u"Salt Roads"_s)).limitedTo(1));
                      if (!rows || rows->isEmpty())
                          return;
                      const auto full = store.vinylByRowId(rows->first().rowId);
                      if (!full || !full->has_value())
                          return;
                      c.app().state()->setCurrentRecord(**full);
                      c.app().state()->setOriginScreen(OriginScreens::List);
                      c.show(u"EditVinylView"_s);
                      if (auto *sheet = openSheetAndSearch(c)) {
                          sheet->CandidateChosen(0);
                          runUntil(c, [&] { return sheet->page() == u"review"_s; });
                      }
                  }});
}
