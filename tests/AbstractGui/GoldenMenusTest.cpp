#include "system/VqVariantStorage.h"
#include "tests/AbstractGui/StoredMenus.h"
#include "tests/AbstractGui/TestBitmapPool.h"

#include <QBuffer>
#include <QCborArray>
#include <QCborMap>
#include <QCborValue>
#include <QDir>
#include <QFile>

#include <gmock/gmock.h>

#include <string>
#include <utility>
#include <vector>

// Stored menus of today, byte for byte as they are on users' disks. golden/README.md tells how a meant change
// is accepted.

using testing::ElementsAre;

namespace {

/// Every kind of item, state and field.
void build(TestMenu& menu)
{
    menu.AppendPopup(1, 0, VQ_TEXT("&File"));
    menu.AppendMenuItem(2, 1, VQ_TEXT("&Open...\aCtrl+O"), VQ_TEXT("FileOpen(1);"), 0);
    menu.AppendIdAccelKey(2, 16, 0x8041, false);
    menu.CheckId(2, true);
    menu.SetIdBitmap(2, 1);
    menu.AppendSeparator(3, 1);
    menu.AppendOneColor(4, 1, 0xFF0080FF, VQ_TEXT("One"));
    menu.AppendTwoColor(5, 1, 1, 2, VQ_TEXT("Two"));
    menu.AppendLineWidth(6, 1, 3, VQ_TEXT("Wide"), VQ_TEXT("Width"));
    menu.AppendPopup(7, 1, VQ_TEXT("&Recent"));
    menu.AppendMenuItem(0xFFFFFFFF, 7, VQ_TEXT("R&&D \u00E4\u6F22 &9\tnote"), VQ_TEXT(""), 0);
    menu.AppendMenuItem(8, 7, VQ_TEXT("gone"), VQ_TEXT("Gone"), 0);
    menu.Item(8)->setDeleted(true);
    menu.Item(8)->setRemoved(true);
    menu.AppendPopup(9, 0, VQ_TEXT("Empty"));
    menu.AppendLonelyAccel(90, 16, 112, VQ_TEXT("Help"));
    menu.AppendLonelyAccel(91, 23, 46, VQ_TEXT(""));
    menu.SecondTable().AddAccelKey(2, 18, 0x42, 0); // is not stored
}

void use_images()
{
    TestBitmapPool& pool = TestBitmapPool::Fresh();
    pool.SetModule(VQ_TEXT("/arbor-none/bin/app.so"));
    pool.SetSource(1, VQ_TEXT("/arbor-none/img/open.png"), VQ_TEXT("OPEN"));
}

/// What the bytes hold in either form; only the image's name differs. `u` stands before an unsigned number.
std::string lists(const std::string& image)
{
    return "Root=[{Id=u1 Type=u7 Status=u1 Text='&File' Command='' SubMenu=["
           "{Id=u2 Type=u2 Status=u3 Text='&Open...' Command='FileOpen(1);' EnaBmpFileName='"
        + image
        + "' EnaBmpResName='OPEN' AccelKey0=5177362 AccelKey1=-2143223792} "
          "{Id=u3 Type=u6 Status=u1} "
          "{Id=u4 Type=u4 Status=u1 Text='' Command='One' Col1=u4278223103} "
          "{Id=u5 Type=u3 Status=u1 Text='' Command='Two' Col1=u1 Col2=u2} "
          "{Id=u6 Type=u5 Status=u1 Text='Wide' Command='Width' LineWidth=u3} "
          "{Id=u7 Type=u7 Status=u1 Text='&Recent' Command='' SubMenu=["
          "{Id=u4294967295 Type=u2 Status=u1 Text='R&&D \u00E4\u6F22 9' Command=''} "
          "{Removed=true Deleted=true Id=u8 Type=u2 Status=u1 Text='gone' Command='Gone'}]}]} "
          "{Id=u9 Type=u7 Status=u1 Text='Empty' Command=''}] "
          "LonelyAccels=[{Id=u90 Type=u0 Status=u1 Command='Help' AccelKey0=7340048} "
          "{Id=u91 Type=u0 Status=u1 Command='' AccelKey0=3014679}]";
}

template <class Form>
struct Golden;

template <>
struct Golden<LiteForm>
{
    static constexpr const char* file = "menu_lite";
    static std::string fields() { return "{CVqMenu={" + lists("/arbor-none/img/open.png") + "}}"; }
    static constexpr const char* image = "AddImage /arbor-none/img/open.png, OPEN, null = 100";
};

template <>
struct Golden<TreeForm>
{
    static constexpr const char* file = "menu_tree";
    static std::string fields() { return "{" + lists("open.png") + "}"; }
    static constexpr const char* image = "AddImage /arbor-none/binopen.png, OPEN, null = 100";
};

/// Names the fields of stored bytes with Qt's classes alone. A name stands as text first and later as the
/// number of that place; names of unsigned values, which have a tag at first, are counted apart.
class FieldWalk
{
public:
    std::string Shown(const QCborValue& value, bool is_unsigned = false)
    {
        if (value.isMap())
            return "{" + entries(value.toMap()) + "}";
        if (value.isArray())
            return "[" + elements(value.toArray()) + "]";
        if (value.isTag()) {
            EXPECT_EQ(quint64(value.tag()), 88U);
            return Shown(value.taggedValue(), true);
        }
        if (value.isString())
            return "'" + value.toString().toStdString() + "'";
        if (value.isBool())
            return value.toBool() ? "true" : "false";
        EXPECT_TRUE(value.isInteger());
        return (is_unsigned ? "u" : "") + std::to_string(value.toInteger());
    }

private:
    using Key = std::pair<std::string, bool>; // name, and whether its values are unsigned

    std::string entries(const QCborMap& map)
    {
        std::string out;
        for (const auto& [stored_key, stored_value] : map) {
            const QCborValue key = stored_key;
            const QCborValue value = stored_value;
            if (key.isString())
                m_keys.emplace_back(key.toString().toStdString(), value.isTag());
            const Key known = key.isString() ? m_keys.back() : m_keys.at(std::size_t(key.toInteger()));
            out += (out.empty() ? "" : " ") + known.first + "=" + Shown(value, known.second);
        }
        return out;
    }

    std::string elements(const QCborArray& array)
    {
        std::string out;
        for (const QCborValue& element : array)
            out += (out.empty() ? "" : " ") + Shown(element);
        return out;
    }

    std::vector<Key> m_keys;
};

template <class Form>
class GoldenMenus : public testing::Test
{
protected:
    using Container = typename Form::Container;
    using Write = EVqStorageResult (*)(QIODevice&, const Container&);
    using Read = EVqStorageResult (*)(QIODevice&, Container&);

    static QString path(const QString& folder, const char* extension)
    {
        return QDir(folder).filePath(QString::fromLatin1(Golden<Form>::file) + QLatin1String(extension));
    }

    static QByteArray stored(const char* extension)
    {
        QFile file(path(QStringLiteral(ARBOR_GOLDEN_MENUS), extension));
        EXPECT_TRUE(file.open(QFile::ReadOnly)) << file.fileName().toStdString();
        return file.readAll();
    }

    static Container built()
    {
        use_images();
        TestMenu menu;
        build(menu);
        Container container;
        menu.Save(container);
        return container;
    }

    static QByteArray written(Write write, const Container& container)
    {
        QBuffer buffer;
        buffer.open(QBuffer::WriteOnly);
        EXPECT_EQ(write(buffer, container), EVqStorageResult::Ok);
        return buffer.data();
    }

    static Container read(Read read, QByteArray bytes)
    {
        QBuffer buffer(&bytes);
        buffer.open(QBuffer::ReadOnly);
        Container container;
        EXPECT_EQ(read(buffer, container), EVqStorageResult::Ok);
        return container;
    }

    /// Compares with the file, or writes it anew where that is asked for.
    static void expect_file(const char* extension, const QByteArray& bytes)
    {
        if (!qEnvironmentVariableIsSet("ARBOR_WRITE_GOLDEN")) {
            EXPECT_EQ(bytes.toStdString(), stored(extension).toStdString());
            return;
        }
        QFile file(path(qEnvironmentVariable("ARBOR_WRITE_GOLDEN"), extension));
        EXPECT_TRUE(file.open(QFile::WriteOnly) && file.write(bytes) == bytes.size());
    }

    static void expect_the_menu(Container container)
    {
        use_images();
        TestBitmapPool& pool = TestBitmapPool::Fresh();
        pool.SetModule(VQ_TEXT("/arbor-none/bin/app.so"));
        TestMenu menu;

        EXPECT_EQ(menu.Load(container), 0);

        EXPECT_EQ(menu.Tree(), "1(2 3 4 5 6 7(4294967295 8-*)) 9");
        EXPECT_EQ(menu.Text(1), "&File");
        EXPECT_EQ(menu.Text(2), "&Open...|Ctrl+O, \u8041");
        EXPECT_EQ(menu.Text(0xFFFFFFFF), "R&&D \u00E4\u6F22 9");
        EXPECT_EQ(menu.Item(0xFFFFFFFF)->mnemonic(), VQ_TEXT('D'));
        EXPECT_EQ(menu.Item(2)->status(), 3u);
        EXPECT_EQ(menu.Item(2)->mnemonic(), VQ_TEXT('O'));
        EXPECT_EQ(TestMenu::Plain(menu.Item(2)->command()), "FileOpen(1);");
        EXPECT_EQ(menu.Item(2)->enaBmpIndex(), 100);
        EXPECT_EQ(menu.Item(3)->type(), 6u);
        EXPECT_EQ(menu.Item(4)->col1(), 0xFF0080FF);
        EXPECT_EQ(menu.Item(5)->col2(), 2u);
        EXPECT_EQ(menu.Item(6)->lineWidth(), 3u);
        EXPECT_EQ(TestMenu::Chain(menu.LonelyAccels()), "90 91");
        EXPECT_EQ(TestMenu::Keys(menu.MainTable()), "2:18+79 2:16+32833 90:16+112 91:23+46");
        EXPECT_EQ(menu.SecondTable().GetAccelsCount(), 0u);
        EXPECT_THAT(pool.TakeCalls(), testing::Contains(Golden<Form>::image));
    }
};

using Forms = testing::Types<LiteForm, TreeForm>;
TYPED_TEST_SUITE(GoldenMenus, Forms, FormName);

}

TYPED_TEST(GoldenMenus, MenuIsWrittenByteForByteAsItWas)
{
    this->expect_file(".cbor", this->written(VQ_WriteCbor, this->built()));
    this->expect_file(".json", this->written(VQ_WriteJson, this->built()));
}

TYPED_TEST(GoldenMenus, StoredFilesLoadAsTheMenu)
{
    this->expect_the_menu(this->read(VQ_ReadCbor, this->stored(".cbor")));
    this->expect_the_menu(this->read(VQ_ReadJson, this->stored(".json")));
}

TYPED_TEST(GoldenMenus, StoredFilesAreWrittenAgainByteForByte)
{
    for (const char* extension : {".cbor", ".json"}) {
        const bool is_cbor = std::string(extension) == ".cbor";
        const QByteArray bytes = this->stored(extension);
        const auto container = is_cbor ? this->read(VQ_ReadCbor, bytes) : this->read(VQ_ReadJson, bytes);

        EXPECT_EQ((is_cbor ? this->written(VQ_WriteCbor, container) : this->written(VQ_WriteJson, container))
                      .toStdString(),
                  bytes.toStdString());
    }
}

TYPED_TEST(GoldenMenus, BytesHoldTheFieldsWithTheirNames)
{
    QCborParserError error;
    const QCborValue value = QCborValue::fromCbor(this->stored(".cbor"), &error);

    EXPECT_EQ(error.error, QCborError::NoError);
    EXPECT_EQ(FieldWalk().Shown(value), Golden<TypeParam>::fields());
}
