#pragma once

/// Calls that can be made to fail; PLANES are requests for a picture's plane, each of MEMORY as well.
enum class Calls { MEMORY, FILES, SDL, PLANES };

/// Lets the call number `number` from now on fail, and all behind it if so wished; 0: none.
void FailCall(Calls kind, int number, bool andAllBehind);

/// How many there have been.
int CallCount(Calls kind);

/// Counts a call, and says whether it is to fail.
bool IsToFail(Calls kind);
