#pragma once

#include "shell/screencontroller.h"

// The current record's notes on a screen of their own, in any characters and lines. Saving
// stores them in the record the user opened and returns to the edit screen, which shows
// them at once.
class NotesViewController : public ScreenController
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString notes READ notes WRITE setNotes NOTIFY notesChanged)

public:
    explicit NotesViewController(AppDelegate *app = nullptr, QObject *parent = nullptr);

    [[nodiscard]] QString notes() const { return m_notes; }
    void setNotes(const QString &notes);

    Q_INVOKABLE void SaveVinylButtonClicked();

signals:
    void notesChanged();

protected:
    void viewDidLoad() override;

private:
    QString m_notes;
};
