#include "docs/snippets/menu_guide.h"
#include "system/CVqLiteVariantR.h"
#include "system/VqVariantStorage.h"

#include <QFile>
#include <QSaveFile>

// [snippet]
// The file is the old one or the new one, whole, whatever happens meanwhile.
bool save_menu(CVqAbstractMenu& menu, const QString& name)
{
    CVqLiteVariantR stored;
    menu.Save(stored);
    QSaveFile file(name);
    return file.open(QSaveFile::WriteOnly) && VQ_WriteCbor(file, stored) == EVqStorageResult::Ok
        && file.commit();
}

// False for what is no stored menu: then the menu is as it was.
bool load_menu(CVqAbstractMenu& menu, const QString& name)
{
    CVqLiteVariantR stored;
    QFile file(name);
    if (!file.open(QFile::ReadOnly) || VQ_ReadCbor(file, stored) != EVqStorageResult::Ok)
        return false;
    if (!stored.IsValueSet(VQ_TEXT("CVqMenu")))
        return false;
    menu.Load(stored);
    return true;
}
// [end]
