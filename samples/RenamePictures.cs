// Numbers the pictures of a folder: RenamePictures.exe FOLDER [--apply]
//
// Without --apply it only shows the names; with it, the files also get noon of the first of May 2024, UTC, as their date.
//
//     mcs -out:RenamePictures.exe samples/RenamePictures.cs VyrC/csharp/Vyr.cs
//     LD_LIBRARY_PATH=build/linux/bin mono RenamePictures.exe FOLDER
using System;
using System.Collections.Generic;
using System.IO;
using System.Runtime.InteropServices;
using Vyr;

static class RenamePictures
{
    const int EndsWith = 3;
    static readonly string[] Endings = { ".jpg", ".jpeg", ".png" };
    static readonly List<IntPtr> Kept = new List<IntPtr>();

    static void Check(int status)
    {
        if (status == 0)
            return;
        var reason = new char[512];
        UIntPtr length;
        Native.vyr_get_last_error(reason, (UIntPtr)reason.Length, out length);
        throw new InvalidOperationException(new string(reason, 0, (int)length));
    }

    // A text of a record, which lives until the program ends.
    static Text Given(string text)
    {
        var address = Marshal.StringToHGlobalUni(text);
        Kept.Add(address);
        return new Text { units = address, length = (IntPtr)text.Length };
    }

    static UIntPtr SizeOf<Record>()
    {
        return (UIntPtr)Marshal.SizeOf(typeof(Record));
    }

    static FilterCondition[] Pictures()
    {
        return Array.ConvertAll(Endings, ending => new FilterCondition {
            struct_size = SizeOf<FilterCondition>(), enabled = 1, text = Given(ending), condition = EndsWith });
    }

    static string NewPath(NameItem rule, int index, string path)
    {
        rule.index = index;
        rule.extension = Given(Path.GetExtension(path));
        var buffer = new char[1024];
        UIntPtr length;
        Check(Native.vyr_name_get_rename_file_path(ref rule, buffer, (UIntPtr)buffer.Length, out length));
        return new string(buffer, 0, (int)length);
    }

    static void Apply(string from, string to)
    {
        File.Move(from, to);
        var moment = (ulong)new DateTime(2024, 5, 1, 12, 0, 0, DateTimeKind.Utc).ToFileTimeUtc();
        int isDone;
        Check(Native.vyr_date_time_set_modified_file_date_time(to, (IntPtr)to.Length, null, new[] { moment }, null, out isDone));
        if (isDone == 0)
            Console.Error.WriteLine(Path.GetFileName(to) + " keeps its date");
    }

    static int Main(string[] arguments)
    {
        if (arguments.Length == 0) {
            Console.Error.WriteLine("use: RenamePictures.exe FOLDER [--apply]");
            return 2;
        }
        var folder = Path.GetFullPath(arguments[0]) + Path.DirectorySeparatorChar;
        var rule = new NameItem {
            struct_size = SizeOf<NameItem>(), dir_path = Given(folder), number_text1 = Given("trip-"), digits = 3, step = 1,
            start_number = 1 };
        var conditions = Pictures();
        var files = Directory.GetFiles(folder);
        Array.Sort(files, string.CompareOrdinal);
        var index = 0;
        foreach (var path in files) {
            int isPicture;
            Check(Native.vyr_filter_is_match_name(Path.GetFileName(path), (IntPtr)(-1), 0, conditions,
                                                  (UIntPtr)conditions.Length, out isPicture));
            if (isPicture == 0)
                continue;
            var renamed = NewPath(rule, index++, path);
            Console.WriteLine(Path.GetFileName(path) + " -> " + Path.GetFileName(renamed));
            if (Array.IndexOf(arguments, "--apply") > 0)
                Apply(path, renamed);
        }
        Kept.ForEach(Marshal.FreeHGlobal);
        return 0;
    }
}
