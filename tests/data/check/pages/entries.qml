import QtQuick 2.15
import UiUtils.Controls 1.0 as Kit

Column {
    Kit.NumberEntry { item: optical_cfg_cable_1 }
    Kit.SwitchEntry { item: optical_cfg_pulse }
    Kit.ChoiceEntry { item: optical_cfg_range }
    Kit.ListEntry { item: optical_cfg_range }
    Kit.TextEntry { item: optical_cfg_stages }
    Kit.TextEntry { item: optical_cfg_offset }
    Kit.NumberEntry { item: optical_cfg_wavelength }
    Kit.NumberEntry { item: optical_cfg_limits }
    Kit.NumberEntry { item: optical_cfg_range.value }
    Kit.ItemSlider { item: optical_cfg_calibration }
}
