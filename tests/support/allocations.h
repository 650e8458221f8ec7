#pragma once

/// How often the program has asked for memory with `new`.
int AllocationCount();

/// Lets the request number `number` from now on for a picture's plane find no memory; 0: none.
void FailPlane(int number);

/// Lets the request number `number` from now on find no memory, and all behind it if so wished; 0: none.
void FailAllocation(int number, bool andAllBehind);
