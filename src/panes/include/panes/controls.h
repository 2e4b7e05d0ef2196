// Controls as plain data: what the window shows of each, without any widget.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "panes/finder.h"

namespace vorlund {

/// Positions and sizes are in twips: 1/1440 inch, 15 to a pixel at 96 dots per inch.
inline constexpr int kTwipsPerPixel = 15;

/// Caption of the label of a long action while it runs.
inline constexpr const char* kWorkingCaption = "..working!";

struct Place {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

/// Red, green and blue as 0xRRGGBB.
using Colour = std::uint32_t;
inline constexpr Colour kWhite = 0xFFFFFF;

enum class MouseButton { kLeft, kRight, kMiddle };

/// One press or release of a mouse button on a control.
struct MouseEvent {
  static constexpr int kShiftKey = 1;  ///< state when Shift alone is held

  MouseButton button = MouseButton::kLeft;
  int shift = 0;  ///< keys held: 1 Shift, 2 Control, 4 Alt, added up
  int x = 0;      ///< twips from the control's left edge
  int y = 0;      ///< twips from the control's top edge
};

struct Label {
  std::string caption;
  bool visible = true;
  Place place{};
  Colour text_colour = kWhite;
};

/// A pane. Of two that overlap, the one with the greater depth is in front.
struct Frame {
  std::string caption;
  bool visible = false;
  Place place{};
  int depth = 0;
};

struct ListBox {
  std::vector<std::string> items{};
  int selected = -1;  ///< index of the selected item, -1 for none
  bool visible = true;
  Finder finder{};
};

struct TextBox {
  std::string text;
  bool visible = true;
};

/// A check box or an option button.
struct Choice {
  std::string caption;
  bool checked = false;
};

/// The common dragging: a press stores the origin, the release moves the control by the difference.
class DragOrigin {
 public:
  void press(const MouseEvent& event) {
    x_ = event.x;
    y_ = event.y;
  }
  void release(const MouseEvent& event, Place& place) const {
    place.left += event.x - x_;
    place.top += event.y - y_;
  }

 private:
  int x_ = 0;
  int y_ = 0;
};

}  // namespace vorlund
