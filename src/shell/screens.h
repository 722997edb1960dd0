#pragma once
// Registers every screen by its name, so that any screen can show any other.
void registerScreens();
