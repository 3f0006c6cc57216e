import UiUtils.Controls 1.0

/// A time of day, typed as the locale writes it or picked; passed on as "14:20".
MomentEntry {
    hasDate: false
}
