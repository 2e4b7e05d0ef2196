// How the sanitizers work while fuzzing: freed memory is held back from being used again, but only so much of
// it that it stays in the processor's reach. The usual 256 MB cost more time than most inputs do.
extern "C" const char* __asan_default_options();

extern "C" const char* __asan_default_options() {
  return "quarantine_size_mb=8:malloc_context_size=4";
}
