// A shared library that is not a module: it has no entry point.
extern "C" int notAnEntryPoint()
{
    return 42;
}
