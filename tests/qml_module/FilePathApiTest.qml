import QtQuick
import K7.Arbor
import K7.Arbor.Tests

StrictTestCase {
    id: suite

    property TestFolder folder
    property string nowhere

    readonly property date modified: new Date(2020, 4, 17, 10, 20)

    name: "FilePathApi"

    Component {
        id: folders

        TestFolder {}
    }

    function init(): void {
        failOnWarning(/.?/);
        folder = createTemporaryObject(folders, suite) as TestFolder;
        nowhere = folder.path + "/nowhere";
    }

    function write(name: string): string {
        return folder.write(name, modified);
    }

    function test_aFileIsToldFromAFolder() {
        const file = write("a.txt");
        verify(FilePathApi.exists(file));
        verify(FilePathApi.isFile(file));
        verify(!FilePathApi.isDir(file));
        verify(FilePathApi.exists(folder.path));
        verify(FilePathApi.isDir(folder.path));
        verify(!FilePathApi.isFile(folder.path));
        verify(!FilePathApi.exists(nowhere));
    }

    function test_aPathIsAbsoluteOrRelative() {
        verify(FilePathApi.isAbsolute(folder.path));
        verify(!FilePathApi.isRelative(folder.path));
        verify(FilePathApi.isRelative("a/b"));
        verify(!FilePathApi.isAbsolute("a/b"));
    }

    function test_aCompiledResourceIsNoNativePath() {
        verify(FilePathApi.isNativePath(folder.path));
        verify(!FilePathApi.isNativePath(":/qt/qml"));
    }

    function test_aFolderIsReadableAndWritable() {
        verify(FilePathApi.isReadable(folder.path));
        verify(FilePathApi.isWritable(folder.path));
    }

    function test_aMissingFolderIsWritableWithoutBeingMade() {
        verify(FilePathApi.isWritable(nowhere + "/deeper/still"));
        verify(!FilePathApi.exists(nowhere));
        verify(!FilePathApi.isReadable(nowhere));
    }

    function test_theNameOfAFileHasParts() {
        const path = "/d/one.two.three";
        compare(FilePathApi.fileName(path), "one.two.three");
        compare(FilePathApi.baseName(path), "one");
        compare(FilePathApi.completeBaseName(path), "one.two");
        compare(FilePathApi.suffix(path), "three");
        compare(FilePathApi.completeSuffix(path), "two.three");
    }

    function test_aPathHasAnAbsoluteForm() {
        compare(FilePathApi.absolutePath("/d/e/f"), "/d/e");
        compare(FilePathApi.absoluteFilePath("/d/f"), "/d/f");
        verify(FilePathApi.absoluteFilePath("f").endsWith("/f"));
        verify(FilePathApi.isAbsolute(FilePathApi.absoluteFilePath("f")));
    }

    function test_aPathHasACanonicalForm() {
        const file = write("a.txt");
        const base = FilePathApi.canonicalFilePath(folder.path);
        compare(FilePathApi.canonicalFilePath(folder.path + "/./a.txt"), base + "/a.txt");
        compare(FilePathApi.canonicalPath(file), base);
        compare(FilePathApi.canonicalFilePath(nowhere), "");
    }

    function test_separatorsGoToNativeAndBack() {
        compare(FilePathApi.fromNativeSeparators(FilePathApi.toNativeSeparators("a/b")), "a/b");
    }

    function test_anEmptyPathIsNothing_data() {
        return ["isDir", "isFile", "isAbsolute", "isRelative", "isNativePath", "removeFile"].map(
            name => ({ tag: name, operation: name, result: false })).concat(
            ["fileName", "baseName", "completeBaseName", "absolutePath", "absoluteFilePath", "suffix",
            "completeSuffix", "canonicalPath", "canonicalFilePath"].map(
                name => ({ tag: name, operation: name, result: "" })));
    }
    function test_anEmptyPathIsNothing(row) {
        compare(FilePathApi[row.operation](""), row.result);
    }

    function test_aTimeTakesAFormat() {
        compare(FilePathApi.modifyTime(write("a.txt"), "dd.MM.yy"), "17.05.20");
    }

    function test_aTimeNeedsNoFormat() {
        const file = write("a.txt");
        compare(FilePathApi.modifyTime(file), "2020-05-17 10:20");
        compare(FilePathApi.creationTime(file), FilePathApi.creationTime(file, "yyyy-MM-dd HH:mm"));
    }

    function test_aMissingFileHasNoTime() {
        compare(FilePathApi.creationTime(nowhere), "");
        compare(FilePathApi.creationTime(nowhere, "yyyy"), "");
        compare(FilePathApi.modifyTime(nowhere), "");
    }

    function test_aFileIsRemoved() {
        const file = write("a.txt");
        verify(FilePathApi.removeFile(file));
        verify(!FilePathApi.exists(file));
    }

    function test_aFolderIsNotRemoved() {
        verify(!FilePathApi.removeFile(folder.path));
        verify(FilePathApi.isDir(folder.path));
    }

    function test_aFileIsRenamedWithinItsFolder() {
        verify(FilePathApi.renameFile(write("a.txt"), "b.txt"));
        verify(FilePathApi.isFile(folder.path + "/b.txt"));
        verify(!FilePathApi.renameFile("", "x"));
    }

    function test_aFolderIsMadeWithAllAboveIt() {
        verify(FilePathApi.createDirectory(nowhere + "/deeper"));
        verify(FilePathApi.isDir(nowhere + "/deeper"));
    }

    function test_aPathGoesToAUrlAndBack() {
        const url = FilePathApi.urlFromLocalFile("/d/a b.txt");
        compare(url.toString(), "file:///d/a b.txt");
        compare(FilePathApi.urlToLocalFile(url), "/d/a b.txt");
        compare(FilePathApi.urlToLocalFile("file:///d/e"), "/d/e");
        compare(FilePathApi.urlToLocalFile("https://example.org/d"), "");
    }

    function test_networksLieBelowTheApplication() {
        compare(FilePathApi.predefAiNetworksFolder(true, false), "./ZUQaiNetworks/Predefined/");
        compare(FilePathApi.predefAiNetworksFolder(true, true),
            "./5bf1378a-f976-4858-8d4a-c068207a11a6/Predefined/");
        verify(FilePathApi.predefAiNetworksFolder(false, false).endsWith("/ZUQaiNetworks/Predefined/"));
    }

    function test_aNetworksPathIsSeenFromTheApplication() {
        const below = FilePathApi.predefAiNetworksFolder(false, false) + "a.net";
        compare(FilePathApi.formatAiNetworkPath(below), "./ZUQaiNetworks/Predefined/a.net");
        compare(FilePathApi.formatAiNetworkPath("/elsewhere/a.net"), "/elsewhere/a.net");
    }

    function test_theNamesInAFolderAreAList() {
        write("b.txt");
        write("A.png");
        compare(FilePathApi.filesInFolder(folder.path, "*.txt *.png"), ["A.png", "b.txt"]);
        compare(FilePathApi.filesInFolder(folder.path, ""), [".", "..", "A.png", "b.txt"]);
        compare(FilePathApi.filesInFolder(nowhere, "").length, 0);
    }
}
