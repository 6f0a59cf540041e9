#pragma once

// Faults of the disk in the program that this is linked into, set by $VORLAN_TEST_FAULT:
//   kill <k>   the process ends as by kill -9 at its k-th change of the disk; of a write, half has
//              been done by then
//   full <k>   from its k-th change on there is no room: half of that write is done, then nothing
// Changes are writes to files, new files, folders and links, new names, removals and truncations.
namespace DiskFaults
{

// Whether the disk became full.
bool IsFull();

} // namespace DiskFaults
