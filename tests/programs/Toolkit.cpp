// A program that starts the toolkit as every program does, and ends.
#include <gtk/gtk.h>

int main(int argc, char** argv)
{
    return gtk_init_check(&argc, &argv) ? 0 : 1;
}
