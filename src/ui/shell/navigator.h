#pragma once

#include <QObject>
#include <QString>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

// Turns the screens' navigation requests into signals the window's stack acts on. Screens
// are named after their QML file ("EditVinylView"); named returns ("unwindToList") pop
// back to the screen registered under that name, which then refreshes.
class Navigator : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Navigator belongs to AppDelegate")

public:
    explicit Navigator(QObject *parent = nullptr);

    // True when the screen's view is part of this build.
    Q_INVOKABLE bool hasScreen(const QString &screen) const;
    Q_INVOKABLE QUrl screenUrl(const QString &screen) const;
    // The screen a named return goes back to ("unwindToList" -> "ListVinylTableView").
    Q_INVOKABLE static QString screenForUnwind(const QString &segue);

    // Opens a screen on top of the current one.
    Q_INVOKABLE void show(const QString &screen);
    // Returns to the screen the segue names (the main menu when it is not open).
    Q_INVOKABLE void unwind(const QString &segue);
    // Closes the current screen.
    Q_INVOKABLE void back();

    [[nodiscard]] QString lastShown() const { return m_lastShown; }
    [[nodiscard]] QString lastUnwind() const { return m_lastUnwind; }

signals:
    void showRequested(const QString &screen, const QUrl &url);
    void unwindRequested(const QString &screen, const QString &segue);
    void backRequested();

private:
    QString m_lastShown;
    QString m_lastUnwind;
};
