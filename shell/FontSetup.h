#pragma once
// Reads the desktop's font configuration before the first text is laid out.
void ReadFontConfiguration();
