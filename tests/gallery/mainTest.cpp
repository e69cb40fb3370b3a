#include <QFile>
#include <QImage>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int g_longest_run = 100000; // ms

struct Outcome
{
    int code = -1;
    QStringList lines;
    QString errors;
};

/// Runs the program itself, without a display.
Outcome run(const QStringList& arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    environment.insert(u"QT_QUICK_BACKEND"_s, u"software"_s);
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(ARBOR_GALLERY_PROGRAM), arguments);
    EXPECT_TRUE(process.waitForFinished(g_longest_run)) << process.errorString().toStdString();
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()).trimmed().split(u'\n'),
            QString::fromUtf8(process.readAllStandardError())};
}

QString written(const QTemporaryDir& folder, const QString& name, const QByteArray& text)
{
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
    return file.fileName();
}

struct BadMenu
{
    const char* name;
    const char* json;
    const char* sentence; // behind the name of the file
};

QStringList all_pictures()
{
    return {u"main"_s, u"popup"_s, u"submenu"_s, u"colours"_s, u"contextmenu"_s, u"dark"_s};
}

/// What the tour says where pages cannot be drawn.
QString no_pages_line()
{
    return u"There are no pictures of pages. Pages are drawn with OpenGL, and there is none: it takes a display, and no other back end in QT_QUICK_BACKEND.\n"_s;
}

int colors_in(const QImage& image)
{
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); y += 10)
        for (int x = 0; x < image.width(); x += 10)
            colors.insert(image.pixel(x, y));
    return static_cast<int>(colors.size());
}

}

TEST(ArborGallery, KeysArePressedAndTold)
{
    const Outcome result = run({u"--keys"_s, u"Ctrl+Shift+S,Ctrl+Comma,[,Alt+F,Esc,Ctrl+Shift+F12"_s});

    EXPECT_EQ(result.code, 0) << result.errors.toStdString();
    EXPECT_EQ(result.lines,
              (QStringList{u"Ctrl+Shift+S -> 1016 FileSaveAs"_s, u"Ctrl+Comma -> 1119 EditPreferences"_s,
                           u"[ -> 9004 BrushSmaller"_s, u"Alt+F -> opens popup File"_s,
                           u"Esc -> no command"_s, u"Ctrl+Shift+F12 -> no command"_s}));
    EXPECT_TRUE(result.errors.isEmpty()) << result.errors.toStdString();
}

TEST(ArborGallery, MnemonicsOpenPopupAfterPopupAndFire)
{
    const Outcome result = run({u"--keys"_s, u"Alt+S,A,Alt+V,G,G,0"_s});

    EXPECT_EQ(result.lines,
              (QStringList{u"Alt+S -> opens popup Select"_s, u"A -> 1401 SelectAll"_s,
                           u"Alt+V -> opens popup View"_s, u"G -> opens popup Grid and Guides"_s,
                           u"G -> opens popup Grid Size"_s, u"0 -> 1821 ViewGridSize(100)"_s}));
}

TEST(ArborGallery, AnUnknownKeyGivesOneSentenceAndTwo)
{
    const Outcome result = run({u"--keys"_s, u"Ctrl+S,Ctrl+Wobble,Alt+F"_s});

    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.errors, u"\"Ctrl+Wobble\" names no key.\n"_s);
    EXPECT_EQ(result.lines, QStringList{QString()});
}

TEST(ArborGallery, InGermanItsPopupsHaveGermanNamesAndMnemonics)
{
    const Outcome result = run({u"--locale"_s, u"de"_s, u"--keys"_s, u"Alt+B,Esc,Esc,Ctrl+S"_s});

    EXPECT_EQ(result.code, 0) << result.errors.toStdString();
    EXPECT_EQ(result.lines.value(0), u"Alt+B -> opens popup Bild"_s);
    EXPECT_EQ(result.lines.value(3), u"Ctrl+S -> 1015 FileSave"_s);
}

TEST(ArborGallery, ScreenshotsHaveTheSizeOfTheWindowAndAreNotBlank)
{
    const QTemporaryDir folder;

    const Outcome result = run({u"--screenshots"_s, folder.path()});

    EXPECT_EQ(result.code, 0) << result.errors.toStdString();
    for (const QString& name : all_pictures()) {
        const QImage image(folder.filePath(name + u".png"_s));
        EXPECT_EQ(image.size(), QSize(1180, 760)) << name.toStdString();
        EXPECT_GT(colors_in(image), 100) << name.toStdString();
    }
}

TEST(ArborGallery, TheTourTellsEachKeyAndWritesPictures)
{
    const QTemporaryDir folder;

    const Outcome result = run({u"--demo"_s, folder.path()});

    EXPECT_EQ(result.code, 0) << result.errors.toStdString();
    EXPECT_GT(result.lines.size(), 30);
    for (const QString& line : result.lines)
        EXPECT_TRUE(line.contains(u" -> "_s)) << line.toStdString();
    EXPECT_TRUE(result.lines.contains(u"Ctrl+Comma -> 1119 EditPreferences"_s));
    EXPECT_TRUE(result.lines.contains(u"Alt+S -> opens popup Select"_s));
    EXPECT_EQ(result.lines.filter(u"-> no command"_s), QStringList{u"Ctrl+Shift+F12 -> no command"_s});
    for (const QString& name : all_pictures())
        EXPECT_FALSE(QImage(folder.filePath(name + u".png"_s)).isNull()) << name.toStdString();
}

TEST(ArborGallery, TheTourGoesTheSameWayInEveryLanguage)
{
    const QTemporaryDir folder;
    const auto fired = [&folder](const QString& locale) {
        QStringList commands;
        for (const QString& line : run({u"--locale"_s, locale, u"--demo"_s, folder.path()}).lines)
            if (!line.contains(u"-> opens popup"_s))
                commands << line.section(u" -> "_s, 1);
        return commands;
    };

    const QStringList english = fired(u"en"_s);

    EXPECT_EQ(fired(u"de"_s), english);
    EXPECT_EQ(fired(u"ja"_s), english);
}

class BadMenus : public testing::TestWithParam<BadMenu>
{ };

TEST_P(BadMenus, GiveOneSentenceWithFileLineAndReasonAndTwo)
{
    const QTemporaryDir folder;
    const QString file = written(folder, u"bad.json"_s, GetParam().json);

    const Outcome result = run({u"--menus"_s, file, u"--keys"_s, u"F1"_s});

    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.errors, file + QString::fromUtf8(GetParam().sentence) + u'\n');
    EXPECT_EQ(result.lines, QStringList{QString()});
}

INSTANTIATE_TEST_SUITE_P(
    ArborGallery, BadMenus,
    testing::Values(
        BadMenu{"BadJson", "{ \"format\": 1,\n  \"menu\": [\n    { ] }", ", line 3: unterminated object."},
        BadMenu{"WrongType", "{ \"format\": 1,\n\n  \"menu\": \"File\" }",
                ", line 3: \"menu\" is not a list."},
        BadMenu{"UnknownEntryType", "{ \"format\": 1,\n  \"menu\": [ { \"type\": \"blob\" } ] }",
                ", line 2: an entry has the unknown type \"blob\"."},
        BadMenu{"DuplicateId", R"({ "format": 1, "menu": [ { "type": "popup", "id": 1, "text": "F", "items": [
{ "id": 2, "text": "A", "command": "CmdA" },
{ "id": 2, "text": "B", "command": "CmdB" } ] } ] })",
                ", line 3: entry \"CmdB\" has the id 2, which entry \"CmdA\" has already."},
        BadMenu{"DuplicateKey",
                R"({ "format": 1, "menu": [ { "type": "popup", "id": 1, "text": "F", "items": [
{ "id": 2, "text": "A", "command": "CmdA", "key": "Ctrl+K" },
{ "id": 3, "text": "B", "command": "CmdB",
  "keys": [ { "flags": [ "Ctrl" ], "key": 75 } ] } ] } ] })",
                ", line 4: entry \"CmdB\" has the key Ctrl+K, which entry \"CmdA\" has already."},
        BadMenu{"UnknownMember",
                R"({ "format": 1, "menu": [ { "type": "popup", "id": 1, "text": "F", "items": [
{ "id": 2, "text": "A", "command": "CmdA",
  "comand": "CmdB" } ] } ] })",
                ", line 3: entry \"CmdA\" has an unknown member \"comand\"."},
        BadMenu{"KeyThatIsNone",
                R"({ "format": 1, "menu": [ { "type": "popup", "id": 1, "text": "F", "items": [
{ "id": 2, "text": "A", "command": "CmdA", "key": "Ctrl+Wobble" } ] } ] })",
                ", line 2: entry \"CmdA\" has the key text \"Ctrl+Wobble\", which names no key."}),
    [](const auto& row) { return row.param.name; });

TEST(ArborGallery, AMissingFileGivesOneSentenceAndTwo)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"nowhere.json"_s);

    const Outcome result = run({u"--menus"_s, file});

    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.errors, file + u": No such file or directory.\n"_s);
}

TEST(ArborGallery, AFolderInPlaceOfAFileGivesOneSentenceAndTwo)
{
    const QTemporaryDir folder;

    const Outcome result = run({u"--menus"_s, folder.path()});

    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.errors, folder.path() + u": it is a folder.\n"_s);
}

TEST(ArborGallery, AnotherMenuFileIsShown)
{
    const QTemporaryDir folder;
    const QString file
        = written(folder, u"small.json"_s,
                  R"({ "format": 1, "menu": [ { "type": "popup", "id": 1, "text": "&Only", "items": [
        { "id": 2, "text": "&Here", "command": "Here", "key": "F2" } ] } ] })");

    const Outcome result = run({u"--menus"_s, file, u"--keys"_s, u"F2,Alt+O,Esc"_s});

    EXPECT_EQ(result.code, 0) << result.errors.toStdString();
    EXPECT_EQ(result.lines.value(0), u"F2 -> 2 Here"_s);
    EXPECT_EQ(result.lines.value(1), u"Alt+O -> opens popup Only"_s);
}

TEST(ArborGallery, ThePicturesAreTakenOfAnotherMenuToo)
{
    const QTemporaryDir folder;
    const QString file = written(folder, u"none.json"_s, R"({ "format": 1, "menu": [] })");

    const Outcome result = run({u"--menus"_s, file, u"--demo"_s, folder.path()});

    EXPECT_EQ(result.code, 0) << result.errors.toStdString();
    EXPECT_EQ(result.errors, no_pages_line());
    EXPECT_NE(QImage(folder.filePath(u"main.png"_s)), QImage(folder.filePath(u"dark.png"_s)));
}

TEST(ArborGallery, WithoutOpenGLTheTourHasNoPicturesOfPagesAndSaysSoOnce)
{
    const QTemporaryDir folder;

    const Outcome result = run({u"--demo"_s, folder.path()});

    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.errors, no_pages_line());
    EXPECT_FALSE(QFile::exists(folder.filePath(u"pages"_s)));
}

TEST(ArborGallery, AnUnknownOptionGivesOneSentenceAndTwo)
{
    const Outcome result = run({u"--blur"_s});

    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.errors, u"Unknown option 'blur'.\n"_s);
}

TEST(ArborGallery, HelpEndsWithZero)
{
    const Outcome result = run({u"--help"_s});

    EXPECT_EQ(result.code, 0);
    EXPECT_TRUE(result.lines.join(u'\n').contains(u"--screenshots"_s));
}

TEST(ArborGallery, PicturesThatCannotBeWrittenGiveOne)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"taken"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));

    const Outcome result = run({u"--screenshots"_s, file.fileName()});

    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.errors, file.fileName() + u"/main.png cannot be written.\n"_s);
}
