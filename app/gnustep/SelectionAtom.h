#pragma once

#include "app/gnustep/Clipboard.h"
#include "app/gnustep/XConnection.h"

namespace launcher {

/// The display's name for a selection.
inline xcb_atom_t selectionAtom(const XConnection& connection, Selection selection) {
  return connection.atom(selection == Selection::clipboard ? "CLIPBOARD" : "PRIMARY");
}

}  // namespace launcher
