// The look that all of the window shares: colours, sizes and the application's palette.
#pragma once

#include <QColor>
#include <QPainter>
#include <QRect>
#include <QWidget>

#include "panes/controls.h"

class QApplication;

namespace vorlund::theme {

/// Property of the main window: true while an action runs that takes no clicks and keys.
inline constexpr const char* kWorkingProperty = "working";

inline constexpr QColor kText{0xF2, 0xF4, 0xF6};
inline constexpr QColor kQuietText{0xAE, 0xBA, 0xC6};
inline constexpr QColor kAccent{0xFF, 0xC9, 0x4D};
inline constexpr QColor kPanel{0x1B, 0x24, 0x2E};
inline constexpr QColor kPanelTitle{0x26, 0x32, 0x3F};
inline constexpr QColor kField{0x12, 0x19, 0x21};
inline constexpr QColor kEdge{0x45, 0x55, 0x66};
inline constexpr QColor kPlate{0x10, 0x18, 0x22, 0xC8};
inline constexpr QColor kPlateHover{0x2C, 0x45, 0x5E, 0xE6};
inline constexpr QColor kPlateEdge{0xFF, 0xFF, 0xFF, 0x28};
inline constexpr QColor kButton{0x2F, 0x49, 0x63};
inline constexpr QColor kButtonHover{0x3F, 0x62, 0x85};
inline constexpr int kRadius = 6;

/// Sets style, palette and style sheet of the whole program.
void apply_to(QApplication& application);

/// Gives a list, a table or a dialog the program's font for good: on Windows such widgets have fonts of their
/// own, which come back whenever a display changes.
void keep_font(QWidget& widget);

/// The text as a tooltip or a dialog shows it literally: such take a text that looks like HTML for it.
QString literal(const QString& text);

/// Pixels of a length in twips, and back.
int pixels(int twips);
int twips(double pixels);
QRect pixels(const Place& place);

/// What stands in a list or table while it is empty, "" for nothing.
void draw_empty_words(QWidget& viewport, const QString& words);

/// A filled rounded rectangle with an optional edge, crisp at every scale.
void draw_plate(QPainter& painter, const QRect& area, const QColor& fill, const QColor& edge);

}  // namespace vorlund::theme
