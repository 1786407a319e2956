#pragma once

#include <QObject>
#include <QQmlParserStatus>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <functional>

class AppDelegate;

// Base of every screen's controller. Tests construct a controller with the AppDelegate to
// use; a controller made by QML takes the running one when the view is complete. Either way
// viewDidLoad() runs once the controller has its AppDelegate.
//
// Alerts: alert() carries title, message and button captions; the view answers with
// answerAlert(index), which runs the action the controller attached to that alert.
class ScreenController : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ANONYMOUS

public:
    // The title of the alert a failed store read or save raises on every screen.
    static inline const QString kStoreErrorTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Unresolved error "));
    // The title of the alert a change of a read-only collection raises.
    static inline const QString kReadOnlyTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Read-Only Collection"));

    explicit ScreenController(AppDelegate *app = nullptr, QObject *parent = nullptr);

    [[nodiscard]] AppDelegate *app() const { return m_app; }

    // The view's answer to the last alert: the index of the button pressed.
    Q_INVOKABLE void answerAlert(int buttonIndex);
    // Called by the view each time the screen appears (also after a return to it).
    Q_INVOKABLE virtual void viewWillAppear() {}
    // Called by the view each time another screen covers it or it leaves the stack.
    Q_INVOKABLE virtual void viewWillDisappear() {}

    // The last alert raised, for tests and the tour.
    [[nodiscard]] QString lastAlertTitle() const { return m_lastAlertTitle; }
    [[nodiscard]] QString lastAlertMessage() const { return m_lastAlertMessage; }

signals:
    void alert(const QString &title, const QString &message, const QStringList &buttons);
    // Emitted once viewDidLoad() has run; properties that depend on the store can notify with it.
    void loaded();

protected:
    // Runs once, when the controller has its AppDelegate.
    virtual void viewDidLoad() {}
    // Must be called by constructors of subclasses that take an AppDelegate, after their own
    // members exist (viewDidLoad is virtual).
    void loadIfReady();

    // A change asked of a read-only collection: raises the alert that says so and answers
    // true; false when the collection can be changed. Asked before a change writes anything,
    // cover files included.
    bool refusedAsReadOnly();

    // Opens the record in the editor, coming from the screen named origin (where the editor
    // returns). Every field is copied, so the editor shows the record picked and nothing of the
    // one before. False, once said, when the record is no longer in the collection.
    bool openInEditor(qint64 rowId, const QString &origin);

    using AlertAction = std::function<void(int buttonIndex)>;
    void showAlert(const QString &title, const QString &message, const QStringList &buttons = {QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "OK"))},
                   AlertAction onAnswer = {});

    void classBegin() override {}
    void componentComplete() override;

private:
    AppDelegate *m_app = nullptr;
    bool m_loaded = false;
    AlertAction m_pendingAnswer;
    QString m_lastAlertTitle;
    QString m_lastAlertMessage;
};
