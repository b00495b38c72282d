#pragma once

class QWidget;

namespace tavrelin {

class Store;

// A window's size and place, kept in the store's section of the window's objectName: `Left`, `Top`,
// `Width`, `Height` in twips and `Maximized` ("1" or "0").

/// Shows the window as it was left. The first time, and when its place is on no screen any more, it
/// stands in the middle of the first screen; on a screen no larger than 1366 by 768 it fills it.
void ShowWindowAsLeft(QWidget& window, const Store& store);

void StoreWindowPlace(const QWidget& window, Store& store);

}  // namespace tavrelin
