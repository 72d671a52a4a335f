#pragma once

/// Opens the file that LARKMOOR_TEST_LOG names as the log, with the level file
/// LARKMOOR_TEST_LEVELS.
void OpenLog();

/// Logs the text twice, as an error and as a debug record.
void Log(char const* text);

/// Logs as much as makes a log file rotate.
void FillLog();
