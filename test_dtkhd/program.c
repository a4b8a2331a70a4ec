/* The library's main is the program. */
extern int main(int argc, char **argv);
