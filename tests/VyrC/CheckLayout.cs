// Prints the records whose size in C# is not that in C.
using System;
using System.Runtime.InteropServices;

static class CheckLayout
{
    static int Main()
    {
        var wrong = 0;
        foreach (var pair in Vyr.Layout.Sizes) {
            if (Marshal.SizeOf(pair.Key) == pair.Value)
                continue;
            Console.WriteLine(pair.Key + ": " + Marshal.SizeOf(pair.Key) + ", not " + pair.Value);
            ++wrong;
        }
        Console.WriteLine(Vyr.Layout.Sizes.Count + " records");
        return wrong == 0 ? 0 : 1;
    }
}
