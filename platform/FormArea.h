#pragma once

/// Where a form stands on the screen and how large its drawing area is, in twips. It gives a map its size.
struct FormArea
{
    /// From the left and the top edge of the screen to the form.
    float Left = 0;
    float Top = 0;
    float Width = 0;
    float Height = 0;
};
