// A run that the user breaks off ends like one that fails: without leaving half a file.
#pragma once

namespace wav {

void catchInterrupts();

// Throws once the user or the system has asked the program to end.
void stopIfInterrupted();

} // namespace wav
