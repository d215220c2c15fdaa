// Dark icons of one colour for the buttons of a dark desktop.
#pragma once

class QIcon;

// The icon itself where buttons are light. Where they are dark its shape in the colour of their
// texts, whatever colour that comes to be.
QIcon readableIcon(const QIcon &icon);
