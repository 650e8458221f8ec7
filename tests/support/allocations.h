#pragma once

/// How often the program has asked for memory with `new`.
int AllocationCount();
