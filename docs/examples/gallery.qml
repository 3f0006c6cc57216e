import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0

// Every entry, over items of the optical service on the left and local items on the right:
//     uiutils-qml docs/examples/gallery.qml
Rectangle {
    id: gallery

    // A local item of the right column: a text unless it says otherwise.
    component Field: UiData {
        type: "std::string"
    }

    width: 1024
    height: 600
    color: ControlsStyle.background

    Field { id: site; label: qsTr("Site"); value: "Lindhof exchange"; mandatory: true; minRange: 1; maxRange: 40; inputType: KivData.INPUT_ALPHANUMERIC }
    Field { id: attenuation; type: "double"; label: qsTr("Attenuation"); value: 3.25; minRange: 0; maxRange: 40; precision: 2; inputType: KivData.INPUT_POSITIVE_FLOAT }
    Field { id: count; type: "int"; label: qsTr("Repetitions"); value: 10; minRange: 1; maxRange: 1000; inputType: KivData.INPUT_POSITIVE_INT }
    Field { id: anyAddress; label: qsTr("Server (either version)"); value: "2001:db8::17"; inputType: KivData.INPUT_IP }
    Field { id: address; label: qsTr("Unit address"); value: "192.0.2.40"; inputType: KivData.INPUT_IPV4 }
    Field { id: address6; label: qsTr("Unit address, version 6"); value: "2001:db8::40"; inputType: KivData.INPUT_IPV6 }
    Field { id: mac; label: qsTr("Port"); value: "00:1A:2B:3C:4D:5E"; inputType: KivData.INPUT_MAC }
    Field { id: url; label: qsTr("Upload to"); value: "https://reports.example.net/in"; inputType: KivData.INPUT_URL }
    Field { id: fileName; label: qsTr("Report file"); value: "lindhof-17"; inputType: KivData.INPUT_FILENAME }
    Field { id: password; label: qsTr("Upload password"); value: "not a secret"; minRange: 8; maxRange: 32; inputType: KivData.INPUT_PASSWORD }
    Field { id: phone; label: qsTr("Call back"); value: "+1 555 0100"; minRange: 3; maxRange: 20; inputType: KivData.INPUT_PHONE_NUMBER }
    Field { id: pin; label: qsTr("Cabinet code"); value: "0417"; minRange: 4; maxRange: 4; inputType: KivData.INPUT_DIGITS }
    Field { id: pattern; type: "uint"; label: qsTr("Test pattern (hexadecimal)"); value: 43981; minRange: 0; maxRange: 65535; inputType: KivData.INPUT_HEX }
    Field { id: mode; type: "uint"; label: qsTr("File mode (octal)"); value: 420; minRange: 0; maxRange: 511; inputType: KivData.INPUT_OCTAL }
    Field { id: lines; label: qsTr("Alarm lines (binary)"); value: "01101"; minRange: 1; maxRange: 8; inputType: KivData.INPUT_BINARY }
    Field { id: duration; type: "uint"; label: qsTr("Test time"); value: 5400; minRange: 1; maxRange: 86400; inputType: KivData.INPUT_DURATIO }
    BoolUiData { id: buzzer; label: qsTr("Buzzer"); value: true }
    EnumUiData {
        id: connector
        label: qsTr("Connector")
        value: 2
        uiEnumList: UiDataEnums {
            UiEnumType { label: qsTr("Straight"); value: 1 }
            UiEnumType { label: qsTr("Angled"); value: 2 }
            UiEnumType { label: qsTr("Bare fiber"); value: 3; applicable: false }
        }
    }
    Field { id: marks; type: "std::vector<string>"; label: qsTr("Landmarks"); value: "Manhole 4,Bridge" }
    Field { id: judged; type: "double"; label: qsTr("Reference"); value: 17.5; precision: 1; Component.onCompleted: setFailing() }
    Field { id: away; label: qsTr("Sensor"); value: "Probe 2"; isReady: false }
    Field { id: fixed; label: qsTr("Serial number"); value: "UT-000417"; readOnly: true }

    ScreenKeyboard {}

    ScrollArea {
        anchors.fill: parent
        padding: ControlsStyle.margin

        RowLayout {
            spacing: ControlsStyle.margin

            Repeater {
                model: [
                    { title: qsTr("Items of a service"),
                      items: [optical_cfg_mode, optical_cfg_range, optical_cfg_pulse, optical_cfg_backscatter, optical_res_loss,
                              optical_cfg_stages, optical_cfg_cable_1, optical_cfg_wavelength, optical_cfg_offset,
                              optical_cfg_duration, optical_cfg_collector, optical_cfg_storeTraces, optical_cfg_calibration,
                              optical_res_state, optical_res_returnLoss, optical_res_length, optical_res_laserPower,
                              optical_res_worstEvent] },
                    { title: qsTr("Items of this page"),
                      items: [site, address, password, buzzer, duration, connector, attenuation, count, marks, anyAddress,
                              address6, mac, url, fileName, phone, pin, pattern, mode, lines, judged, away, fixed] }
                ]

                Card {
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    Layout.alignment: Qt.AlignTop
                    spacing: ControlsStyle.touchGap
                    title: modelData.title

                    Repeater {
                        model: modelData.items
                        ItemEntry {
                            Layout.fillWidth: true
                            item: modelData
                        }
                    }
                }
            }
        }
    }
}
