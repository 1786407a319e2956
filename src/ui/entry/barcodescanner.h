#pragma once

#include "lookup/barcodereader.h"

#include <QElapsedTimer>
#include <QFutureWatcher>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QVideoSink>
#include <QtQml/qqmlregistration.h>

#include <optional>

class QVideoFrame;

// Watches the camera's picture for the code on a sleeve. A few frames a second are decoded on a
// worker thread, one at a time: frames that arrive meanwhile are dropped, so a slow machine reads
// fewer frames instead of falling behind the camera. Each code is told once, however long the
// sleeve stays in view.
class BarcodeScanner : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    // The sink of the VideoOutput that shows the camera; none stops the scanning.
    Q_PROPERTY(QVideoSink *videoSink READ videoSink WRITE setVideoSink NOTIFY videoSinkChanged)
    // Whether a frame is being decoded now.
    Q_PROPERTY(bool decoding READ isDecoding NOTIFY decodingChanged)

public:
    // Five frames a second find a code as soon as the hand holding the sleeve is still.
    static constexpr int kFrameIntervalMs = 200;

    explicit BarcodeScanner(QObject *parent = nullptr);

    [[nodiscard]] QVideoSink *videoSink() const { return m_sink; }
    void setVideoSink(QVideoSink *sink);
    [[nodiscard]] bool isDecoding() const { return m_decoding; }

    // Forgets the codes told so far, so that the same sleeve is told again.
    Q_INVOKABLE void reset() { m_told.clear(); }

signals:
    void videoSinkChanged();
    void decodingChanged();
    // format is "EAN-13", "EAN-8", "UPC-A" or "UPC-E".
    void found(const QString &digits, const QString &format);

private:
    void takeFrame(const QVideoFrame &frame);
    void decodeFinished();

    QPointer<QVideoSink> m_sink;
    QFutureWatcher<std::optional<Barcode>> m_decode;
    QElapsedTimer m_sinceLastFrame;
    QSet<QString> m_told;
    bool m_decoding = false;
};
