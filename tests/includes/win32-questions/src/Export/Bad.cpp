#if defined(_WIN32)
