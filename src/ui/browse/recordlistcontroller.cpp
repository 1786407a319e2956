#include "browse/recordlistcontroller.h"

#include "collection/browsetexts.h"
#include "shell/appdelegate.h"
#include "shell/coverimageprovider.h"

void RecordListController::openRecord(qint64 rowId, const QString &origin)
{
    auto record = app()->persistentContainer().vinylByRowId(rowId);
    if (!record) {
        showAlert(kStoreErrorTitle, record.errorMessage());
        return;
    }
    if (!record.value()) {
        showAlert(BrowseTexts::kRecordNotFoundTitle, BrowseTexts::kRecordNotFoundMessage);
        reloadRecords();
        return;
    }
    app()->state()->setCurrentRecord(**record);
    app()->state()->setOriginScreen(origin);
    app()->navigator()->show(BrowseTexts::kEditScreen);
}

bool RecordListController::deleteRecord(qint64 rowId)
{
    Store &store = app()->persistentContainer();
    auto removed = store.transaction([&]() { return store.remove(Entity::Vinyl, rowId); });
    if (!removed) {
        showAlert(kStoreErrorTitle, removed.errorMessage());
        return false;
    }
    (void)app()->saveContext();
    CoverImageProvider::forget(rowId);
    return true;
}
