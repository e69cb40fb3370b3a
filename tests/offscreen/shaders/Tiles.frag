#version 440

// Tiles of their own colours: red grows to the right, green grows downwards.
layout(location = 0) in vec2 qt_TexCoord0;
layout(location = 0) out vec4 fragColor;

layout(std140, binding = 0) uniform buf
{
    mat4 qt_Matrix;
    float qt_Opacity;
    float columns;
    float rows;
};

void main()
{
    vec2 tile = floor(qt_TexCoord0 * vec2(columns, rows));
    fragColor = vec4(tile * vec2(51.0, 17.0) / 255.0, 0.0, 1.0) * qt_Opacity;
}
