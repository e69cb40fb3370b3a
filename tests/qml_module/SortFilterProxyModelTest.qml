pragma ComponentBehavior: Bound

import QtQuick
import K7.Arbor
import K7.Arbor.Tests

StrictTestCase {
    id: suite

    property SortFilterProxyModel proxy

    readonly property int count: proxy ? proxy.count : -1

    name: "SortFilterProxyModel"

    SampleModel {
        id: layers
    }
    SampleModel {
        id: others
    }
    Component {
        id: plain

        SortFilterProxyModel {
            source: layers
        }
    }
    Component {
        id: sorted

        SortFilterProxyModel {
            source: layers
            sortRole: "size"
            sortOrder: Qt.DescendingOrder
        }
    }
    Component {
        id: filtered

        SortFilterProxyModel {
            source: layers
            filterRole: "name"
            filterSyntax: SortFilterProxyModel.Wildcard
            filterString: "s?a"
        }
    }
    Component {
        id: sourceless

        SortFilterProxyModel {
            sortRole: "size"
            sortOrder: Qt.AscendingOrder
        }
    }

    function init(): void {
        failOnWarning(/.?/);
        layers.Update([{ name: "sky", size: 30 }, { name: "sea", size: 1 }, { name: "shore", size: 200 }]);
        others.Update([{ name: "moon", size: 2 }, { name: "sun", size: 1 }]);
    }

    function cleanup(): void {
        proxy = null;
    }

    function make(component: Component): void {
        proxy = createTemporaryObject(component, suite) as SortFilterProxyModel;
    }

    function names(): list<string> {
        const found = [];
        for (let row = 0; row < proxy.count; ++row)
            found.push(proxy.get(row, "name"));
        return found;
    }

    function test_withoutSettingsItIsTheSource() {
        make(plain);
        compare(proxy.source, layers);
        compare(names(), ["sky", "sea", "shore"]);
    }

    function test_rolesSetInTheDeclarationSort() {
        make(sorted);
        compare(names(), ["shore", "sky", "sea"]);
        compare(proxy.sortOrder, Qt.DescendingOrder);
    }

    function test_rolesSetInTheDeclarationFilter() {
        make(filtered);
        compare(names(), ["sea"]);
    }

    function test_rolesSetLaterSort() {
        make(sorted);
        proxy.sortRole = "name";
        proxy.sortOrder = Qt.AscendingOrder;
        compare(names(), ["sea", "shore", "sky"]);
    }

    function test_rolesSetLaterFilter() {
        make(plain);
        proxy.filterRole = "size";
        proxy.filterString = "0";
        compare(names(), ["sky", "shore"]);
        proxy.filterRole = "name";
        compare(names(), []);
    }

    function test_aRoleReadsAsItsName() {
        make(sorted);
        compare(String(proxy.sortRole), "size");
        proxy.filterRole = "name";
        compare(String(proxy.filterRole), "name");
    }

    function test_aSourceThatComesLaterNeedsTheRoleAgain() {
        make(sourceless);
        proxy.source = layers;
        compare(names(), ["sky", "sea", "shore"]);

        proxy.sortRole = "";
        proxy.sortRole = "size";

        compare(names(), ["sea", "sky", "shore"]);
    }

    function test_anotherSourceTakesThePlace() {
        make(plain);
        proxy.source = others;
        compare(names(), ["moon", "sun"]);
    }

    function test_whatIsNoModelIsNoSource() {
        make(plain);
        proxy.source = suite;
        compare(proxy.source, null);
        compare(proxy.count, 0);
    }

    function test_theSyntaxIsAnEnumeration() {
        make(plain);
        compare(proxy.filterSyntax, SortFilterProxyModel.RegExp);
        proxy.filterSyntax = SortFilterProxyModel.FixedString;
        compare(proxy.filterSyntax, 2);
        compare(SortFilterProxyModel.Wildcard, 1);
    }

    function test_eachSyntaxReadsTheTextInItsOwnWay_data() {
        return [
            { tag: "expression", syntax: SortFilterProxyModel.RegExp, text: "^s.+e$", names: ["shore"] },
            { tag: "wildcard", syntax: SortFilterProxyModel.Wildcard, text: "s?a", names: ["sea"] },
            { tag: "fixed", syntax: SortFilterProxyModel.FixedString, text: "k", names: ["sky"] },
            { tag: "fixed signs", syntax: SortFilterProxyModel.FixedString, text: "s.", names: [] },
            { tag: "empty expression", syntax: SortFilterProxyModel.RegExp, text: "", names: ["sky", "sea", "shore"] },
            { tag: "empty wildcard", syntax: SortFilterProxyModel.Wildcard, text: "", names: ["sky", "sea", "shore"] },
            { tag: "empty text", syntax: SortFilterProxyModel.FixedString, text: "", names: ["sky", "sea", "shore"] }
        ];
    }
    function test_eachSyntaxReadsTheTextInItsOwnWay(row) {
        make(plain);
        proxy.filterRole = "name";
        proxy.filterSyntax = row.syntax;
        proxy.filterString = row.text;
        compare(names(), row.names);
    }

    function test_withoutARoleAnyRoleMatches() {
        make(plain);
        proxy.filterString = "200|sky";
        compare(names(), ["sky", "shore"]);
    }

    function test_bindingsFollowTheCount() {
        make(plain);
        compare(count, 3);
        proxy.filterString = "sea";
        compare(count, 1);
        proxy.filterString = "";
        compare(count, 3);
    }

    function test_bindingsMissAReset() {
        make(plain);
        compare(count, 3);
        proxy.source = others;
        compare(count, 3);
        compare(proxy.count, 2);
    }

    function test_filterStringTellsItsChanges() {
        make(plain);
        let changes = 0;
        proxy.filterStringChanged.connect(() => ++changes);
        proxy.filterString = "s";
        proxy.filterString = "s";
        compare(changes, 1);
    }

    function test_aRowIsReadAsAnObjectOfTexts() {
        make(sorted);
        const row = proxy.get(0);
        compare(row.name, "shore");
        compare(row.size, "200");
    }

    function test_aValueIsReadWithItsType() {
        make(sorted);
        compare(proxy.get(0, "size"), 200);
        compare(typeof proxy.get(0, "size"), "number");
    }

    function test_rowsOutOfRangeAreEmpty() {
        make(plain);
        compare(Object.keys(proxy.get(-1)).length, 0);
        compare(Object.keys(proxy.get(3)).length, 0);
        compare(proxy.get(3, "name"), undefined);
        compare(proxy.get(0, "unknown"), undefined);
    }

    function test_modelsOfQmlAreSources() {
        const list = Qt.createQmlObject("import QtQml.Models; ListModel { ListElement { name: 'a' }"
            + " ListElement { name: 'b' } }", suite);
        make(plain);
        proxy.source = list;
        proxy.filterRole = "name";
        proxy.filterString = "b";
        compare(names(), ["b"]);
        proxy.source = null;
        list.destroy();
    }
}
