#include "docs/snippets/toolbar_guide.h"
#include "system/CVqVariant.h"
#include "system/VqVariantStorage.h"

#include <QFile>
#include <QSaveFile>

// [snippet]
// The file is the old one or the new one, whole, whatever happens meanwhile.
bool save_toolbar(CVqQuickButtonToolbar& bar, const QString& name)
{
    CVqVariant stored;
    bar.Save(stored, VQ_TEXT("main"));
    QSaveFile file(name);
    return file.open(QSaveFile::WriteOnly) && VQ_WriteCbor(file, stored) == EVqStorageResult::Ok
        && file.commit();
}

// False for what cannot be read, or not whole: fill the toolbar anew then.
bool load_toolbar(CVqQuickButtonToolbar& bar, const QString& name)
{
    CVqVariant stored;
    QFile file(name);
    if (!file.open(QFile::ReadOnly) || VQ_ReadCbor(file, stored) != EVqStorageResult::Ok)
        return false;
    return bar.Load(stored, nullptr) == 0;
}
// [end]
