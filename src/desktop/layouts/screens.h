#pragma once

#include "desktop/layouts/layout.h"

/// The layout table of each screen.
namespace wb::desktop {

/// The command buttons and the status text; menus and tool bar follow from the controls themselves.
const ScreenLayout& frameLayout();
const ScreenLayout& edidLayout();
const ScreenLayout& ceaExtLayout();
const ScreenLayout& documentLayout();
const ScreenLayout& calculatorLayout();
const ScreenLayout& helpLayout();
const ScreenLayout& edidRegLayout();
const ScreenLayout& aboutLayout();

/// What the screens of the two blocks have in common.
std::span<const Area> blockAreas();

} // namespace wb::desktop
