/* The floor for a program that is started for one answer: it starts and ends. */
int main(void)
{
    return 0;
}
