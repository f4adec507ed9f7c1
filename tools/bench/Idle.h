// When a window is there and nothing is left to do.
#pragma once

namespace wheelwright::bench {

// Ends the event loop the first time that it waits for events.
void QuitWhenIdle();

// Prints the resident memory of the process in kB.
void PrintMemory();

}  // namespace wheelwright::bench
