import UiUtils.Controls 1.0

/// A date, typed as the locale writes it or picked from a calendar; passed on as "2026-11-22".
MomentEntry {
    hasTime: false
}
