// What a program settles before it does anything else, so that the world around it cannot harm its files.
#pragma once

namespace vantor {

// Whoever starts the program may have closed the standard streams. The first files to be opened would stand
// in their place, and what is told to the user would be written into them: into a saved picture. They get
// descriptors that can be neither read from nor written to, so that a list that goes nowhere is an error
// still. And a reader that went away, or a limit of the size of files, fails a write rather than end the
// program. First thing in main().
void settleIntoTheProcess();

// Where memory or threads are refused the program ends at once, with a sentence and the exit code rather than
// with a crash. Files that are being written leave nothing behind, as after any end. Once the language is
// known; main thread.
void endClearlyWithoutMemory(int exitCode);

}  // namespace vantor
