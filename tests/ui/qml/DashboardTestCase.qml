// A dashboard in a window, and what a person does with it.
import QtQuick
import QtTest
import Quelby
import QuelbyTest

TestCase {
    id: testCase

    property MadeUp madeUp
    property ContentView view
    property bool animated: false

    // What the presentation says; of the settings only while they are shown.
    readonly property var said: view?.dashboard ?? null

    width: 400
    height: 660
    visible: true
    when: windowShown

    Component {
        id: madeUpComponent

        MadeUp {}
    }

    Component {
        id: viewComponent

        ContentView {
            dark: false
            animated: testCase.animated
        }
    }

    function init() {
        failOnWarning(/.?/)
        mouseMove(testCase, 1, 1)
        madeUp?.destroy() // which outlives its view
        madeUp = madeUpComponent.createObject(testCase)
        madeUp.fill()
        makeView()
    }

    function makeView() {
        view = createTemporaryObject(viewComponent, testCase, { dashboard: madeUp.model })
        view.dashboard.watched = true
        view.forceActiveFocus()
        settle()
    }

    // Layouts settle in the next turn, and when they are polished, which is done before anything is drawn.
    function settle() {
        wait(0)
        grabImage(testCase)
    }

    function set(name, value) {
        verify(madeUp.set(name, value), name)
        settle()
    }

    function showSettings() {
        view.showSettings = true
        settle()
    }

    // The visible items below another that are of the type, in the order of the files.
    function all(type, root) {
        let found = []
        for (const child of Array.from((root ?? view).children)) {
            if (child.visible) {
                if (child instanceof type) {
                    found.push(child)
                }
                found = found.concat(all(type, child))
            }
        }
        return found
    }

    function one(type, root) {
        const found = all(type, root)
        compare(found.length, 1)
        return found[0]
    }

    function named(type, name) {
        const found = all(type).filter(item => (item.name ?? item.choice.text) === name)
        compare(found.length, 1, name)
        return found[0]
    }

    // The button at a place of the row that the card has, counted from 0.
    function choice(card, index) {
        return all(ChoiceButton, one(card))[index]
    }

    function texts(root) {
        return all(Text, root).map(item => item.text).filter(text => text !== "")
    }

    function has(text) {
        return texts().includes(text)
    }

    function placeOf(item) {
        return item.mapToItem(view, 0, 0)
    }

    function click(item) {
        view.reveal(item)
        settle()
        mouseClick(item)
        settle()
    }

    // What a person does who has no pointer.
    function press(item, key) {
        item.forceActiveFocus(Qt.TabFocusReason)
        keyClick(key)
        settle()
    }

    function config() {
        return JSON.parse(madeUp.config)
    }
}
