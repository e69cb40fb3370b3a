pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import K7.Arbor
import K7.Arbor.Tests

StrictTestCase {
    id: suite

    property AbstractListModel model // what a page declares, whatever the model

    name: "AbstractListModel"

    Component {
        id: models

        SampleModel {}
    }
    SignalSpy {
        id: changes

        signalName: "dataChanged"
        target: suite.model
    }
    Component {
        id: views

        ListView {
            width: 100
            height: 1000
            delegate: Text {
                required property string name

                height: 20
                text: name
            }
        }
    }

    function init(): void {
        failOnWarning(/.?/);
        model = createTemporaryObject(models, suite) as AbstractListModel;
        model.Update([{ name: "sky", size: 3 }, { name: "sea", size: 1 }, { name: "shore", size: 2 }]);
    }

    function valueAt(row: int, role: string): var {
        return model.data(model.index(row, 0), model.TranslateRole(role));
    }

    function names(): list<string> {
        return [0, 1, 2].map(row => valueAt(row, "name"));
    }

    function test_updateTakesAListOfScript() {
        compare(model.rowCount(), 3);
        compare(model.columnCount(), 1);
        compare(names(), ["sky", "sea", "shore"]);
        compare(valueAt(0, "size"), 3);
    }

    function test_aRoleHasANumber() {
        compare(model.TranslateRole("name"), Qt.UserRole + 1);
        compare(model.TranslateRole("size"), Qt.UserRole + 2);
    }

    function test_anUnknownRoleIsNumber0() {
        compare(model.TranslateRole("unknown"), 0);
    }

    function test_aRowIsMoved() {
        verify(model.moveRow(0, 2));
        compare(names(), ["sea", "shore", "sky"]);
    }

    function test_aRowIsNotMovedPastTheEnd() {
        verify(!model.moveRow(0, 3));
        verify(!model.moveRow(-1, 0));
        verify(model.moveRow(7, 7));
        compare(names(), ["sky", "sea", "shore"]);
    }

    function test_aViewFollowsAMove() {
        const view = createTemporaryObject(views, suite, { model: model }) as ListView;
        view.forceLayout();

        model.moveRow(2, 0);
        view.forceLayout();

        compare((view.itemAtIndex(0) as Text).text, "shore");
        compare((view.itemAtIndex(1) as Text).text, "sky");
    }

    function test_aChangeIsToldButNotStored() {
        changes.clear();
        const role = model.TranslateRole("name");

        verify(model.setData(model.index(1, 0), "lake", role));

        compare(changes.count, 1);
        compare(names(), ["sky", "sea", "shore"]);
    }

    function test_itCannotBeMadeInQml() {
        const component = Qt.createComponent("data:text/plain,import K7.Arbor\nAbstractListModel {}");
        tryCompare(component, "status", Component.Error);
        verify(component.errorString().includes("Its rows come from C++"), component.errorString());
    }
}
