#include "CharacterSets.h"
#include "OVAlert.h"
#include "OVCustomRestrictedTextField.h"
#include "OVNotificationCenter.h"
#include "OVPreferredLanguages.h"
#include "OVRestrictedTextField.h"
#include "OVTableViewDataSource.h"
#include "OrvoHelper.h"

#include <QApplication>
#include <QClipboard>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

// One key event per UTF-16 unit.
static void typeText(QWidget *widget, const QString &text) {
    for (const QChar unit : text)
        QTest::sendKeyEvent(QTest::Click, widget, Qt::Key_unknown, unit, Qt::NoModifier);
}

// Keeps the named events posted while it lives.
struct EventRecorder : QObject {
    explicit EventRecorder(const char *name) {
        OVNotificationCenter::defaultCenter().addObserver(
            name, [this](const OVNotification &event) { events << event; }, this);
    }
    QList<OVNotification> events;
};

static void makeCommunityField(OVRestrictedTextField &field, bool showMessage) {
    field.setValidCharacters(ControlSets::community());
    field.setInvalidCharacters(ControlSets::communityInvalid());
    field.setMaxLength(ControlSets::communityMaxLength);
    field.showMessageIfInvalid(showMessage);
    field.setNotifyEditing(true);
    field.setInvalidMessageString("Letters and digits only", "Invalid community name");
}

TEST(ControlsTest, communityField) {
    const QString limit(32, u'a');
    // Whether the field alerts, the keys, the text left, alerts and edit events.
    const std::tuple<bool, QString, QString, int, int> cases[] = {
        {true, "Ab9_\u00A5\u200B", "Ab9_\u00A5\u200B", 0, 6},
        {true, "ab-", "ab", 1, 3},            // the alert cleans the text; the edit then counts
        {false, "ab#", "ab", 0, 2},           // the valid set refuses it: no event for that key
        {true, "a\uFF39\u00A0b", "ab", 0, 2}, // full-width Y, no-break space: look-alikes
        {false, limit + "b", limit, 0, 33}};
    QList<QStringList> alerts;
    OVAlert::setResponder([&alerts](const OVAlert &alert) {
        alerts << (QStringList{alert.text(), alert.informativeText()} + alert.buttonTitles());
        return 0;
    });
    for (const auto &[showMessage, typed, expected, alertCount, eventCount] : cases) {
        SCOPED_TRACE(typed.toStdString());
        alerts.clear();
        OVRestrictedTextField field;
        makeCommunityField(field, showMessage);
        EventRecorder edits(OVRestrictedTextField::didEditingNotification);
        typeText(&field, typed);
        EXPECT_EQ(field.text(), expected);
        EXPECT_EQ(edits.events.size(), eventCount);
        EXPECT_TRUE(edits.events.isEmpty() || edits.events[0].sender() == &field);
        EXPECT_EQ(alerts, QList<QStringList>(alertCount, {"Invalid community name",
                                                          "Letters and digits only", "OK"}));
    }
    OVAlert::setResponder({});
}

// Clamped to 1–10 when editing ends (the stepper follows); typed entries snap into 90–340.
TEST(ControlsTest, numericField) {
    // Initial text, keys typed (none: Return pressed instead), the text left.
    const std::tuple<QString, QString, QString> cases[] = {
        {"25", "", "10"}, {"0", "", "1"}, {"", "5", "90"}, {"50", "0", "340"}, {"120", "a", "120"}};
    for (const auto &[initial, keys, expected] : cases) {
        QSpinBox stepper;
        OVRestrictedTextField field;
        field.setNumeric();
        if (keys.isEmpty()) {
            field.restrictMinValue(1);
            field.restrictMaxValue(10);
            field.syncWithStepper(&stepper);
        }
        field.setText(initial);
        keys.isEmpty() ? QTest::keyClick(&field, Qt::Key_Return) : typeText(&field, keys);
        EXPECT_EQ(field.text(), expected) << initial.toStdString() << "+" << keys.toStdString();
        EXPECT_TRUE(!keys.isEmpty() || QString::number(stepper.value()) == expected);
    }
}

// A refused key restores the prior text and posts nothing; auto trim keeps a paste's valid part.
TEST(ControlsTest, macAddressFieldAndAutoTrim) {
    const std::tuple<QString, QString, bool, QString, qsizetype> cases[] = {
        {"", "A1F", false, "A1", 2},
        {"", "G", false, "", 0},
        {"A4", "G", false, "A4", 0},
        {"", "a-b", true, "ab", 1}};
    for (const auto &[initial, input, pasted, expected, changes] : cases) {
        OVCustomRestrictedTextField field;
        field.setValidCharacters(pasted ? QString("ab") : ControlSets::hexadecimal());
        field.setMaxEditableTextLength(2);
        field.setSendNotification(true);
        field.setText(initial);
        if (pasted)
            field.setAllowAutoTrim();
        EventRecorder events(OVCustomRestrictedTextField::notification);
        QApplication::clipboard()->setText(input);
        pasted ? field.paste() : typeText(&field, input);
        EXPECT_EQ(field.text(), expected) << input.toStdString();
        ASSERT_EQ(events.events.size(), changes);
        for (const OVNotification &event : events.events)
            EXPECT_EQ(event.userInfo[OVCustomRestrictedTextField::methodNameKey], "textDidChange");
    }
}

// Mixed scripts, emoji, NUL, a lone surrogate, typed then pasted by the megabyte: rules hold.
TEST(ControlsTest, hostileInputKeepsEachFieldsRules) {
    const QString unit =
        QStringLiteral("ab-12 Ωж中文ا\U0001F600") + QChar(0) + QChar(0x200B) + QChar(0xD83D);
    OVAlert::setResponder([](const OVAlert &) { return 0; });
    OVRestrictedTextField community, numeric;
    makeCommunityField(community, true);
    numeric.setNumeric();
    numeric.restrictMaxValue(999);
    OVCustomRestrictedTextField trimmed;
    trimmed.setValidCharacters(ControlSets::hexadecimal());
    trimmed.setAllowAutoTrim();
    // Each field, its characters and its length limit (0: none of its own).
    const std::tuple<QLineEdit *, QString, int> fields[] = {
        {&community, ControlSets::community(), 32},
        {&numeric, "0123456789", 3},
        {&trimmed, ControlSets::hexadecimal(), 0}};
    for (const auto &[field, valid, maxLength] : fields) {
        typeText(field, "12" + unit);
        QApplication::clipboard()->setText(unit.repeated(1024 * 1024 / unit.size()));
        field->paste();
        QTest::keyClick(field, Qt::Key_Return);
        EXPECT_TRUE(OrvoHelper::isValidString(field->text(), valid) &&
                    (maxLength == 0 || field->text().size() <= maxLength))
            << field->text().size() << " " << field->text().left(40).toStdString();
    }
    OVAlert::setResponder({});
}

// The first button sits rightmost, a missing title leaves no gap, each answers its result.
TEST(ControlsTest, alertDialog) {
    const std::tuple<QStringList, QStringList, int, int> cases[] = {
        {{QString(), QString(), QString()}, {"OK"}, 0, OVAlert::defaultReturn},
        {{"Save", "Cancel", "Discard"}, {"Save", "Discard", "Cancel"}, 2, OVAlert::alternateReturn},
        {{"Save", QString(), "Discard"}, {"Save", "Discard"}, 1, OVAlert::otherReturn}};
    for (const auto &[titles, panelOrder, pressed, result] : cases) {
        const auto alert = OVAlert::alertWithMessageText("", titles[0], titles[1], titles[2], "%@");
        QMap<int, QString> rightToLeft;
        QTimer::singleShot(0, [&, pressed = pressed] {
            EXPECT_TRUE(alert->isVisible());
            for (QPushButton *button : alert->panelButtons())
                rightToLeft[-button->mapTo(alert.get(), QPoint(0, 0)).x()] = button->text();
            alert->panelButtons().at(pressed)->click();
        });
        EXPECT_EQ(alert->runModal(), result);
        EXPECT_EQ(rightToLeft.values(), panelOrder);
    }
}

// An observer removed during delivery is not called, one added then waits for the next event,
// one whose context is gone is never called again, and a context may outlive its centre.
TEST(ControlsTest, notificationCentre) {
    QObject survivor;
    OVNotificationCenter center;
    auto context = std::make_unique<QObject>();
    QStringList calls;
    const auto record = [&calls](const char *tag) {
        return [&calls, tag](const OVNotification &) { calls << tag; };
    };
    center.addObserver("A", record("context"), context.get());
    center.addObserver("B", record("B"));
    OVNotificationCenter::Token removed = 0;
    center.addObserver("A", [&](const OVNotification &) {
        center.removeObserver(removed);
        center.addObserver("A", record("late"));
    });
    removed = center.addObserver("A", record("removed"));
    center.addObserver("A", record("survivor"), &survivor);
    center.postNotification("A", QVariant());
    context.reset();
    center.postNotification("A", QVariant());
    EXPECT_EQ(calls, (QStringList{"context", "survivor", "survivor", "late"}));
}

// Selection goes through the table, one event per change; removing the selected row selects
// the next silently; a reload keeps the row while it exists; only shown text is localized, and it
// shows the characters that reorder or break a line by their code.
TEST(ControlsTest, stringListModel) {
    QTableView view;
    OVTableViewDataSource source;
    source.setTableView(&view);
    source.setElementsArray(QStringList{"Form", "Form B", "Form C"});
    OVPreferredLanguages::setOverride(QStringList{"de-DE"});
    source.setLocalizeStrings(true);
    EXPECT_EQ(source.data(source.index(0, 0), Qt::DisplayRole), "Formular");
    EXPECT_EQ(source.getElementAtRow(0), "Form");
    OVPreferredLanguages::setOverride(std::nullopt);
    const QString reordering = QStringLiteral("q\u202Eabc\u2028\uFEFF");
    source.setElementsArray(QStringList{reordering});
    EXPECT_EQ(source.data(source.index(0, 0), Qt::DisplayRole), "q\\u202eabc\\u2028\\ufeff");
    EXPECT_EQ(source.getElementAtRow(0), reordering);
    source.setElementsArray(QStringList{"Form A", "Form B", "Form C"});
    EventRecorder events(OVTableViewDataSource::selectionChangedNotification);
    const QPoint rowB = view.visualRect(source.index(1, 0)).center();
    const std::tuple<std::function<void()>, int, QString, int> steps[] = {
        {[&] { source.selectLastRow(); }, 2, "Form C", 1},
        {[&] { source.unselectAllRow(); }, -1, "", 2},
        {[&] { source.selectFirstRow(); }, 0, "Form A", 3},
        {[&] { QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, rowB); }, 1, "Form B", 4},
        {[&] { source.removeSelectedRow(); }, 1, "Form C", 4},
        {[&] { source.setElementsArray(QString("X Y Z").split(' ')); }, 1, "Y", 4},
        {[&] { source.setElementsArray(QStringList{"only"}); }, -1, "", 5}};
    for (const auto &[step, row, value, eventCount] : steps) {
        step();
        SCOPED_TRACE(value.toStdString());
        const QModelIndexList rows = view.selectionModel()->selectedRows();
        EXPECT_EQ(rows.isEmpty() ? -1 : rows.first().row(), row);
        EXPECT_EQ(source.getSelectedRow(), row);
        EXPECT_EQ(source.getSelectedRowValue(), value);
        EXPECT_EQ(events.events.size(), eventCount);
    }
    EXPECT_EQ(events.events[0].object, QVariant(QStringLiteral("SelctionChanged")));
}
