#pragma once

/// Opens the log file LARKMOOR_TEST_LOG with the level file LARKMOOR_TEST_LEVELS.
void OpenLog();

/// Rotates the log although none is open, which must fail.
void RotateLog();

/// Logs a string twice, as an error and as a debug record.
void Log(char const* text);

/// Logs enough to rotate a log file.
void FillLog();
