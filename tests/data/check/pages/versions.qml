import QtQuick 2.15
import QtQuick.Controls
import QtQuick.Layouts 4.0
import uiutils 1.0
import UiUtils.Controls 2.0

Item {}
