// A program that comes to its own end, which the exit code tells from any other.
int main() {
    return 7;
}
