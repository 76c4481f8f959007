// A window holding each input control, configured as the main window
// configures them, plus the alert. With --screenshot FILE it photographs the
// screen once everything is drawn and quits. The picture in the docs comes from
// a real X server:
//   export LSAN_OPTIONS=suppressions=tests/lsan.supp QT_QPA_PLATFORM=xcb
//   xvfb-run -a -s "-screen 0 1280x600x24" build-asan/demo/controls_gallery
//       --screenshot docs/controls-gallery.png
#include "CharacterSets.h"
#include "NSKeyValueTextField.h"
#include "OVAlert.h"
#include "OVCustomRestrictedTextField.h"
#include "OVRestrictedTextField.h"
#include "OVTableViewDataSource.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QSpinBox>
#include <QTableView>
#include <QTimer>

namespace {

QWidget *communityField() {
    auto *field = new OVRestrictedTextField;
    field->setValidCharacters(ControlSets::community());
    field->setInvalidCharacters(ControlSets::communityInvalid());
    field->setMaxLength(ControlSets::communityMaxLength);
    field->showMessageIfInvalid(true);
    field->setInvalidMessageString("The community name holds a character that is not allowed.",
                                   "Invalid character");
    field->setText("cobalt");
    return field;
}

QWidget *macAddressRow() {
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    const QStringList octets{"00", "1B", "A9", "3c", "04", "F2"};
    for (const QString &octet : octets) {
        if (layout->count() > 0) {
            layout->addWidget(new QLabel(":"));
        }
        auto *field = new OVCustomRestrictedTextField;
        field->setValidCharacters(ControlSets::hexadecimal());
        field->setMaxEditableTextLength(2);
        field->setSendNotification(true);
        field->setText(octet);
        field->setMaximumWidth(40);
        layout->addWidget(field);
    }
    layout->addStretch();
    return row;
}

QWidget *numericRow() {
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *field = new OVRestrictedTextField;
    field->setNumeric();
    field->restrictMinValue(90);
    field->restrictMaxValue(340);
    auto *stepper = new QSpinBox;
    stepper->setRange(90, 340);
    stepper->setValue(120);
    field->syncWithStepper(stepper);
    field->setText("120");
    field->setMaximumWidth(80);
    layout->addWidget(field);
    layout->addWidget(stepper);
    layout->addStretch();
    return row;
}

QWidget *keyValueField() {
    auto *field = new NSKeyValueTextField;
    field->setName("PaperSource", 4, "Tray");
    field->setKeyArray({"Tray 1", "Tray 2"}, {1, 2});
    field->setSelectedStringValue("Tray 2");
    field->setText("Tray 2");
    return field;
}

QTableView *formTable(OVTableViewDataSource *source) {
    auto *table = new QTableView;
    source->setTableView(table);
    source->setElementsArray(QStringList{"Invoice", "Delivery note", "Letterhead", "Label 4x6"});
    table->horizontalHeader()->setStretchLastSection(true);
    table->horizontalHeader()->hide();
    table->verticalHeader()->hide();
    source->selectFirstRow();
    return table;
}

std::unique_ptr<OVAlert> sampleAlert() {
    auto alert = OVAlert::alertWithMessageText(
        "Failed to obtain information.", QString::fromLatin1(OVAlert::defaultButtonTitle), "Cancel",
        "Retry", QString::fromLatin1(OVAlert::plainMessageFormat), {"The printer did not answer."});
    alert->setIcon(QMessageBox::Critical);
    return alert;
}

} // namespace

int main(int argc, char **argv) {
    QApplication app(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption screenshot("screenshot", "Save a screenshot to FILE and quit.",
                                        "FILE");
    parser.addOption(screenshot);
    parser.process(app);

    OVTableViewDataSource forms;
    QWidget window;
    window.setWindowTitle("Input controls");
    auto *layout = new QFormLayout(&window);
    layout->addRow("SNMP community:", communityField());
    layout->addRow("MAC address:", macAddressRow());
    layout->addRow("Numeric with stepper:", numericRow());
    layout->addRow("Key-value field:", keyValueField());
    layout->addRow("Forms:", formTable(&forms));
    auto *alertButton = new QPushButton("Show alert");
    QObject::connect(alertButton, &QPushButton::clicked, [] { sampleAlert()->runModal(); });
    layout->addRow("", alertButton);
    window.resize(520, 420);
    window.move(10, 10);
    window.show();

    if (!parser.isSet(screenshot)) {
        return app.exec();
    }
    // The alert stays open beside the window for the picture.
    const auto alert = sampleAlert();
    alert->setModal(false);
    alert->move(window.frameGeometry().right() + 20, 10);
    alert->show();
    const QString file = parser.value(screenshot);
    QTimer::singleShot(800, [&] {
        const QPixmap shot = QGuiApplication::primaryScreen()->grabWindow(0);
        const bool saved = shot.copy(0, 0, alert->frameGeometry().right() + 12,
                                     window.frameGeometry().bottom() + 12)
                               .save(file);
        app.exit(saved ? 0 : 1);
    });
    return app.exec();
}
