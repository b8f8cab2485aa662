// A panel drawn as text.
#pragma once

#include <string>
#include <vector>

#include "qvn/toolkit/surface.h"

namespace qvn::play {

/// The panel as its operator sees it, one UTF-8 text a line; no lines where the panel is hidden.
///
///     ┌─Caption──────────────────┐   a frame; one that is disabled is dotted ┌┄┄┐ ┆
///     │ Caption: │text  │        │   a field, its text at its own side of it
///     │          ║text  ║        │   the field that has the focus
///     │          ┆text  ┆        │   a field that cannot be used, by itself or by its frame
///     │          │item ▾│        │   a closed list
///     │          [text  ]        │   a label with a border
///     │ (Caption:) (text  )      │   labels that are disabled; in a frame that is, its sides tell it for them
///     │ │x│ Caption  │ Caption │ │   a check box, a button; their sides tell the same as a field's
///     └──────────────────────────┘
///
/// A character is 75 twips wide. Each row of widgets is one line.
/// Captions have no background: what is under them wins. A text that does not fit ends, or begins, with "…".
std::vector<std::string> drawn(const toolkit::Surface& panel);

}  // namespace qvn::play
