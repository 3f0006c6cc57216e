import UiUtils.Controls 1.0

/// A date with a time of day, typed as the locale writes it or picked; passed on as "2026-11-22T14:20".
MomentEntry {
}
