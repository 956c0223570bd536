#pragma once

#include "platform/base/Outcome.h"

#include <QString>

namespace platform {

class CopyMonitor;
struct Losses;

/**
 * moveItem() to another file system. The copy is made in a staging folder, looked at, written to the disk and put in
 * its place; then the original leaves its place in one step, and only then is it removed. Up to that step a failure
 * leaves the original whole and nothing at the destination; after it the destination is whole.
 */
Outcome moveAcross(const QString &source, const QString &destination, CopyMonitor *monitor, Losses *losses);

} // namespace platform
