#pragma once
// Start-up: main() calls runProgram; the tests call startProgram, the part
// of it that needs an application object already made.
struct StartOptions;

// Points the runtime at the chosen folders, registers every screen and
// shows the title screen.
void startProgram(const StartOptions& options);

// The whole program: command line, display check, title screen, event loop.
int runProgram(int argc, char* argv[]);
