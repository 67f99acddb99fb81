// Has the headers of precompiled.h compiled.
