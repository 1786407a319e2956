#include "entry/notesviewcontroller.h"

#include "shell/appdelegate.h"

using namespace Qt::StringLiterals;

NotesViewController::NotesViewController(AppDelegate *app, QObject *parent) : ScreenController(app, parent)
{
    loadIfReady();
}

void NotesViewController::viewDidLoad()
{
    setNotes(app()->state()->currentRecord().notes);
}

void NotesViewController::setNotes(const QString &notes)
{
    if (m_notes == notes)
        return;
    m_notes = notes;
    emit notesChanged();
}

void NotesViewController::SaveVinylButtonClicked()
{
    Store &store = app()->persistentContainer();
    const auto found = store.vinylByRowId(app()->state()->currentRecord().rowId);
    if (!found) {
        showAlert(kStoreErrorTitle, found.errorMessage());
        return;
    }
    if (found->has_value()) {
        Vinyl vinyl = **found;
        vinyl.notes = m_notes.isNull() ? u""_s : m_notes;
        const auto saved = store.transaction([&] { return store.update(vinyl); });
        if (!saved) {
            showAlert(kStoreErrorTitle, saved.errorMessage());
            return;
        }
    }
    app()->state()->editCurrentRecord().notes = m_notes;
    app()->state()->notifyCurrentRecordChanged();
    app()->navigator()->unwind(u"unwindToEdit"_s);
}
