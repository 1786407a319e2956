#pragma once

#include <QDateTime>
#include <QImage>
#include <QList>
#include <QString>

#include <optional>

// The record (or group) the user picked last. Strings are never absent here: an absent
// attribute becomes the empty text.
struct CurrentRecord
{
    qint64 rowId = 0; // the picked object's identity, so editors address exactly that record
    qint16 id = 0;
    QString name;
    QString artist;
    std::optional<QDateTime> releaseDate;
    QString recordLabel;
    qint16 quantity = 0;
    double albumDuration = 0;
    QString producer;
    QString vinylCondition;
    QString coverCondition;
    QString recordSpeed;
    QString doubleAlbum;
    float cost = 0;
    float value = 0;
    QString notes;
    QString barcode;
    QString musicBrainzReleaseId;
    std::optional<QImage> frontImage;
    std::optional<QImage> backImage;
    QList<QImage> images; // front then back, those present
    QString frontImagePath;
    QString backImagePath;
};
