// The editor as the launcher starts it, with an eye on its first paint.
extern "C" int run(int argc, char **argv);

int main(int argc, char **argv)
{
    return run(argc, argv);
}
