#include "AbstractGui/CVqAbstractMenu.h"
#include "quick_backend/CVqQuickMenu.h"
#include "system/CVqLiteVariantR.h"
#include "system/CVqVariant.h"
#include "tests/quick_backend/PoolFixture.h"

#include <algorithm>
#include <functional>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

using Pool = CVqAbstractBitmapPool;

/// Menus with an image are stored by one pool and loaded with another. What lies beside the program is put
/// there for the time of a test.
struct CVqQuickBitmapPoolStoredTest : testing::Test
{
    ~CVqQuickBitmapPoolStoredTest() override
    {
        for (const QString& name : m_made)
            QFile::remove(name);
        QDir(Folder()).rmdir(OwnName());
    }

    static QString Folder() { return QDir(QCoreApplication::applicationDirPath()).canonicalPath(); }

    /// Other tests of the program run at the same time.
    static QString OwnName() { return u"pool_test_%1"_s.arg(QCoreApplication::applicationPid()); }

    QString Beside(const QString& name)
    {
        const QString path = Folder() + u'/' + name;
        QDir().mkpath(QFileInfo(path).path());
        WriteFile(path, Encoded(SampleImage(3, 2), "png"));
        m_made += path;
        return path;
    }

    void NewPool()
    {
        m_pool.reset();
        m_pool = std::make_unique<CVqQuickBitmapPool>();
    }

    static void Fill(CVqQuickMenu& menu, int index)
    {
        menu.AppendPopup(1, 0, VQ_TEXT("File"));
        menu.AppendMenuItem(2, 1, VQ_TEXT("Open"), VQ_TEXT("FileOpen"), 0);
        EXPECT_EQ(menu.SetIdBitmap(2, index), 0);
    }

    template <class Container>
    int StoredAndLoaded(int index, const std::function<void()>& in_between)
    {
        Container stored;
        {
            CVqQuickMenu menu;
            Fill(menu, index);
            EXPECT_EQ(menu.Save(stored), 0);
        }
        NewPool();
        in_between();
        CVqQuickMenu menu;
        EXPECT_EQ(menu.Load(stored), 0);
        vq_int32 loaded = 0;
        EXPECT_EQ(menu.GetIdBitmap(2, loaded), 0);
        return loaded;
    }

    /// The source of the image that came back, or a code.
    template <class Container>
    std::string SourceAfter(int index, const std::function<void()>& in_between = [] { })
    {
        EXPECT_GT(index, 0);
        const int loaded = StoredAndLoaded<Container>(index, in_between);
        return loaded < 0 ? std::to_string(loaded) : PoolFixture::Source(loaded);
    }

    QStringList m_made;
    std::unique_ptr<CVqQuickBitmapPool> m_pool = std::make_unique<CVqQuickBitmapPool>();
};

template <class Container>
struct CVqQuickBitmapPoolStoredForms : CVqQuickBitmapPoolStoredTest
{ };

using Forms = testing::Types<CVqLiteVariantR, CVqVariant>;
TYPED_TEST_SUITE(CVqQuickBitmapPoolStoredForms, Forms);

}

TYPED_TEST(CVqQuickBitmapPoolStoredForms, ImageOfAModuleComesBack)
{
    const int index = PoolFixture::AddIcon(VQ_TEXT("OPEN"));

    EXPECT_EQ(this->template SourceAfter<TypeParam>(index), "k7_tile_assets.dll|OPEN");
}

TYPED_TEST(CVqQuickBitmapPoolStoredForms, FileBesideTheModuleComesBack)
{
    const QString path = this->Beside(this->OwnName() + u".png"_s);

    EXPECT_EQ(this->template SourceAfter<TypeParam>(PoolFixture::Add(path)), path.toStdString() + "|");
}

TYPED_TEST(CVqQuickBitmapPoolStoredForms, NamedImageComesBackWhereTheNameIsKnownAgain)
{
    const auto add = [] { return Pool::AddImageSVG(VQ_TEXT("star"), StencilSvg().constData()); };

    EXPECT_EQ(this->template SourceAfter<TypeParam>(add(), add), "star|");
}

TEST_F(CVqQuickBitmapPoolStoredTest, FileBelowTheModulesFolderComesBackFromTheLiteFormAlone)
{
    const QString path = Beside(OwnName() + u"/a.png"_s);

    EXPECT_EQ(SourceAfter<CVqLiteVariantR>(PoolFixture::Add(path)), path.toStdString() + "|");
    NewPool();
    EXPECT_EQ(SourceAfter<CVqVariant>(PoolFixture::Add(path)), "-13");
}

TEST_F(CVqQuickBitmapPoolStoredTest, FileElsewhereComesBackFromTheLiteFormAlone)
{
    const QTemporaryDir folder;
    const QString path = QDir(folder.path()).canonicalPath() + u"/a.png"_s;
    WriteFile(path, Encoded(SampleImage(3, 2), "png"));

    EXPECT_EQ(SourceAfter<CVqLiteVariantR>(PoolFixture::Add(path)), path.toStdString() + "|");
    NewPool();
    EXPECT_EQ(SourceAfter<CVqVariant>(PoolFixture::Add(path)), "-13");
}

TEST_F(CVqQuickBitmapPoolStoredTest, CompiledResourceComesBackFromTheLiteFormAlone)
{
    const QString path = u":/tile_assets/open.svg"_s;

    EXPECT_EQ(SourceAfter<CVqLiteVariantR>(PoolFixture::Add(path)), path.toStdString() + "|");
    NewPool();
    EXPECT_EQ(SourceAfter<CVqVariant>(PoolFixture::Add(path)), "-13");
}

TEST_F(CVqQuickBitmapPoolStoredTest, DefaultModuleIsBesideTheProgram)
{
    vq_wchar buffer[1000] = {};

    EXPECT_EQ(Pool::GetDefaultModuleFileName(buffer, 1000), 0);

    EXPECT_EQ(CVqStringW(buffer).ToQString(), Folder() + u"/k7_tile_assets.dll"_s);
}

TEST_F(CVqQuickBitmapPoolStoredTest, ModuleNameIsWrittenWholeOrNotAtAll)
{
    const int length = int(Folder().size()) + int(qstrlen("/k7_tile_assets.dll"));
    vq_wchar buffer[1000] = {VQ_TEXT('x')};

    EXPECT_EQ(Pool::GetDefaultModuleFileName(buffer, length), -9);
    EXPECT_EQ(buffer[0], 0);
    EXPECT_EQ(Pool::GetDefaultModuleFileName(buffer, length + 1), 0);
    EXPECT_EQ(buffer[length], 0);
    EXPECT_EQ(Pool::GetDefaultModuleFileName(buffer, 0), -9);
    EXPECT_EQ(Pool::GetDefaultModuleFileName(nullptr, 10), -9);
}

TEST_F(CVqQuickBitmapPoolStoredTest, SeparatorComesBetweenFolderAndName)
{
    const QString name_of_logo = OwnName() + u".png"_s;
    const QString logo = Beside(name_of_logo);
    const auto replaced = [](const QString& text) {
        CVqStringW name = CVqStringW::FromQString(text);
        EXPECT_EQ(Pool::ReplaceDebug(name), 0);
        return name.ToQString();
    };
    Pool::AddImageSVG(VQ_TEXT("star"), StencilSvg().constData());

    EXPECT_EQ(replaced(Folder() + name_of_logo), logo);
    EXPECT_EQ(replaced(name_of_logo), logo);
    EXPECT_EQ(replaced(Folder() + u"k7_tile_assets.dll"_s), Folder() + u"/k7_tile_assets.dll"_s);
    EXPECT_EQ(replaced(Folder() + u"star"_s), u"star"_s);
    EXPECT_EQ(replaced(Folder() + u"none.png"_s), Folder() + u"none.png"_s);
    EXPECT_EQ(replaced(u"/other/"_s + name_of_logo), u"/other/"_s + name_of_logo);
    EXPECT_EQ(replaced(QString()), QString());
}
