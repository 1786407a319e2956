#include "shell/appstate.h"

AppState::AppState(QObject *parent) : QObject(parent) {}

void AppState::setCurrentRecord(const Vinyl &vinyl)
{
    CurrentRecord &c = m_current;
    c.rowId = vinyl.rowId;
    c.id = number(vinyl.id);
    c.name = text(vinyl.name);
    c.artist = text(vinyl.artist);
    c.releaseDate = vinyl.releaseDate;
    c.recordLabel = text(vinyl.recordLabel);
    c.quantity = number(vinyl.quantity);
    c.albumDuration = number(vinyl.albumDuration);
    c.producer = text(vinyl.producer);
    c.vinylCondition = text(vinyl.vinylCondition);
    c.coverCondition = text(vinyl.coverCondition);
    c.recordSpeed = text(vinyl.recordSpeed);
    c.doubleAlbum = text(vinyl.doubleAlbum);
    c.cost = number(vinyl.cost);
    c.value = number(vinyl.value);
    c.notes = text(vinyl.notes);
    c.barcode = text(vinyl.barcode);
    c.musicBrainzReleaseId = text(vinyl.musicBrainzReleaseId);

    c.frontImage.reset();
    c.backImage.reset();
    c.images.clear();
    if (vinyl.frontImage && !vinyl.frontImage->isEmpty()) {
        if (QImage image = QImage::fromData(*vinyl.frontImage); !image.isNull()) {
            c.frontImage = image;
            c.images.append(image);
        }
        c.frontImagePath = text(vinyl.frontImagePath);
    }
    if (vinyl.backImage && !vinyl.backImage->isEmpty()) {
        if (QImage image = QImage::fromData(*vinyl.backImage); !image.isNull()) {
            c.backImage = image;
            c.images.append(image);
        }
        c.backImagePath = text(vinyl.backImagePath);
    }
    emit currentRecordChanged();
}

void AppState::setOriginScreen(const QString &screen)
{
    if (m_originScreen == screen)
        return;
    m_originScreen = screen;
    emit originScreenChanged();
}

void AppState::setSortAscending(bool ascending)
{
    if (m_sortAscending == ascending)
        return;
    m_sortAscending = ascending;
    emit sortAscendingChanged();
}
