// What most sources of ours read, read once for all of them.
#include <QApplication>
#include <QMenu>
#include <QVariant>
#include <QWidget>

#include <algorithm>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>
