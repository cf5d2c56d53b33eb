// Building a shortcut's key code.
#include "project/key_code.h"

uint32_t keyCode(uint32_t virtualKey, bool ctrl, bool alt, bool shift) {
  return virtualKey % 1000 + (ctrl ? 4000 : 0) + (alt ? 2000 : 0) + (shift ? 1000 : 0);
}

std::string keyText(bool ctrl, bool alt, bool shift, const std::string& keyName) {
  std::string text = ctrl ? "Ctrl" : "";
  if (alt) text += "+Alt";
  if (shift) text += text.empty() ? "Shift" : "+Shift";
  return text.empty() ? keyName : text + "+" + keyName;
}

std::string virtualKeyName(uint32_t virtualKey) {
  constexpr uint32_t kF1 = 0x70;
  constexpr uint32_t kF24 = 0x87;
  if (virtualKey >= kF1 && virtualKey <= kF24) return "F" + std::to_string(virtualKey - kF1 + 1);
  if ((virtualKey >= '0' && virtualKey <= '9') || (virtualKey >= 'A' && virtualKey <= 'Z'))
    return std::string(1, static_cast<char>(virtualKey));
  return "Key " + std::to_string(virtualKey);
}
