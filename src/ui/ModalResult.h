// How a dialog ended, as its ModalResult tells.
#pragma once

namespace modal {
inline constexpr int None = 0; ///< it is open, or was closed without a button
inline constexpr int Ok = 1;
inline constexpr int Cancel = 2;
} // namespace modal
