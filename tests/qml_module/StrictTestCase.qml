import QtTest

// A test case that fails on any warning that it did not announce with ignoreWarning().
TestCase {
    function init(): void {
        failOnWarning(/.?/);
    }
}
