#pragma once

/// Calls that can be made to fail.
enum class Calls { MEMORY, FILES, SDL };

/// Lets the call number `number` from now on fail, and all behind it if so wished; 0: none.
void FailCall(Calls kind, int number, bool andAllBehind);

/// How many there have been.
int CallCount(Calls kind);

/// Counts a call, and says whether it is to fail.
bool IsToFail(Calls kind);
